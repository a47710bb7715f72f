#include "sample/SampleDealer.h"

#include <QCryptographicHash>

#include "ledger/ChargeCheck.h"
#include "ledger/LedgerProof.h"
#include "platform/runtime/Literals.h"
#include "store/Lookup.h"
#include "store/Tables.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

void Fill(int customers, int months) {
    sample::FillSampleDealer({customers, months, 2011, 3}, [](const QString&) {});
}

QByteArray ContentsOfEveryTable() {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const TableDef& table : Tables()) {
        QStringList rows = ScratchStore::rows(u"SELECT * FROM "_s + table.name);
        rows.sort();
        hash.addData((table.name + rows.join(u'\n')).toUtf8());
    }
    return hash.result();
}

TEST(SampleDealer, TheSameWishGivesTheSameRows) {
    const auto filled = [] {
        const ScratchStore store;
        Fill(60, 3);
        return ContentsOfEveryTable();
    };
    EXPECT_EQ(filled(), filled());
}

TEST(SampleDealer, TheSecondOpinionAgreesAndSeesOneYen) {
    const ScratchStore store;
    Fill(120, 4);
    EXPECT_EQ(ScratchStore::rows(u"SELECT COUNT(*) AS n FROM TtoD"_s).value(0), u"480"_s);
    for (int month : {12, 1, 2, 3}) {
        const int year = month == 12 ? 2010 : 2011;
        const auto differences = CheckCharges(*gDb, {year, month});
        EXPECT_TRUE(differences.empty()) << Describe(differences.front()).toStdString();
    }
    EXPECT_TRUE(ProveLedger(*gDb).findings.empty());

    gDb->Execute(u"DELETE FROM TtoD WHERE Deal=11 AND Nendo=2011 AND Getudo=3"_s);
    const auto findings = ProveLedger(*gDb).findings;
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].difference.column, u"行"_s);
    gDb->Execute(u"UPDATE Dgd SET Gaku=Gaku+1 WHERE Deal=7 AND Nendo=2011 AND Getudo=3"_s);
    ASSERT_EQ(CheckCharges(*gDb, {2011, 3}).size(), 1u);
    EXPECT_EQ(CheckCharges(*gDb, {2011, 3}).front().found - CheckCharges(*gDb, {2011, 3}).front().expected,
              10000);
}

TEST(SampleDealer, HasWhatADealerHas) {
    const ScratchStore store;
    Fill(300, 3);
    // Each question must find something, or the screens would have nothing to show.
    for (const char16_t* question :
         {u"SELECT * FROM Deal WHERE Bnk=9900 AND Stn>10000", u"SELECT * FROM Deal WHERE NoSeikyu=1",
          u"SELECT * FROM Deal WHERE Sime=10", u"SELECT * FROM Dgd WHERE KoukanMeter>0",
          u"SELECT * FROM Dud WHERE HinCode=90", u"SELECT * FROM Dny WHERE Eda=2",
          u"SELECT * FROM TtoD WHERE SyokiFlg=1", u"SELECT * FROM Dud WHERE Nendo*100+Getudo=201104",
          u"SELECT * FROM Dny WHERE Nendo*100+Getudo=201104",
          u"SELECT * FROM Dgd WHERE KonkaiMeter<ZenkaiMeter AND KoukanMeter=0",
          u"SELECT * FROM Dgd WHERE KoukanMeter<ZenkaiMeter AND KoukanMeter>0",
          u"SELECT * FROM TtoD WHERE ZenkaiGaku<0",
          u"SELECT * FROM Dud WHERE Suu*Tanka<>Gaku AND Tanka<>0"}) {
        EXPECT_FALSE(ScratchStore::rows(QString::fromUtf16(question)).isEmpty())
            << QString::fromUtf16(question).toStdString();
    }
    EXPECT_TRUE(ScratchStore::rows(u"SELECT * FROM Dgd WHERE Suu>0 AND Gaku=0"_s).isEmpty());
    for (const QString& customer : ScratchStore::rows(u"SELECT Yubin,Addr1 FROM Deal"_s)) {
        const QString town = AddressOfZip(customer.section(u'|', 0, 0));
        EXPECT_TRUE(!town.isEmpty() && customer.section(u'|', 1).startsWith(town)) << customer.toStdString();
    }
}

}  // namespace
}  // namespace akarix
