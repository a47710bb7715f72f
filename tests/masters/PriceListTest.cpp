#include "masters/MstTanka_frm.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/Literals.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// The prices by capacity on paper.
class PriceList : public ScreenTest {
 protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), store.path(u"Prt"_s)));
        gPrintPreview = false;
        OpenScreen<MstTanka_frm>();
    }
    /// Prints the pattern; each page is a document of its own. Gives the row labels and prices of each, read
    /// line by line.
    QStringList print(const QString& pattern) {
        clerk.fill(pattern);
        AnswerPrinter(clerk, store.path(u"list.pdf"_s));
        clerk.click("Btn(3)");
        QStringList tables;
        for (const QString& file : {u"list.pdf"_s, u"list (2).pdf"_s, u"list (3).pdf"_s}) {
            if (!QFile::exists(store.path(file))) break;
            for (const QString& page : PdfPages(store.path(file))) {
                EXPECT_TRUE(page.contains(u"パターン"_s + pattern)) << page.toStdString();
                const qsizetype from = page.indexOf(u"0123456789"_s) + 10;
                tables += page.mid(from, page.indexOf(u"上の見出し"_s) - from);
            }
            QFile::remove(store.path(file));
        }
        return tables;
    }

    ScratchStore store;
};

TEST_F(PriceList, EachKindFillsItsPages) {
    for (const char* row : {"1,0,900,1", "1,9,901,1", "1,199,902,1", "1,250,903,1", "2,.1,800,2",
                            "2,12.3,801,2", "2,20,802,2", "2,59.9,803,2"})
        gDb->Execute(u"INSERT INTO Tnk(Ptn,Capa,Tanka,Kubun) VALUES(%1)"_s.arg(QString(row)));
    EXPECT_EQ(print(u"1"_s),
              (QStringList{u"0900901102030405060708090100110120130140150160170180190902"_s,
                           u"200210220230240250903260270280290300310320330340350360370380390"_s}));
    EXPECT_EQ(clerk.text("ebox(0)"), QString()) << "and the screen is cleared";
    EXPECT_EQ(print(u"2"_s), (QStringList{u"080012345678910111280113141516171819"_s,
                                          u"2080221222324252627282930313233343536373839"_s,
                                          u"4041424344454647484950515253545556575859803"_s}));
}

TEST_F(PriceList, PrintingSavesAndMayBeCancelled) {
    clerk.fill(u"6"_s);
    clerk.fill(u"15"_s);
    clerk.fill(u"1500"_s);
    AnswerEscape(clerk, u"Printer_frm"_s);
    clerk.click("Btn(3)");
    EXPECT_EQ(ScratchStore::rows(u"SELECT Ptn,Capa,Tanka,Kubun FROM Tnk"_s), QStringList{u"6|15|1500|1"_s});
    EXPECT_EQ(clerk.text("ebox(0)"), QString());
    clerk.fill(u"7"_s);
    clerk.click("Btn(3)");
    EXPECT_EQ(clerk.text("ebox(0)"), QString()) << "nothing is stored: no printer is asked for";
    EXPECT_EQ(clerk.said().size(), 1) << "the printer dialog alone";
}

}  // namespace
}  // namespace akarix
