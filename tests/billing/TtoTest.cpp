#include "billing/Tto.h"

#include <functional>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

/// A ledger row as "Deal|ZenkaiGaku|GGaku|UGaku|Gaku|NGaku|SyokiFlg".
QStringList Ledger(int year, int month) {
    return ScratchStore::rows(
        u"SELECT Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD WHERE Nendo=%1 AND "
        "Getudo=%2 ORDER BY Deal"_s.arg(year)
            .arg(month));
}

QStringList LeaseLines() {
    return ScratchStore::rows(
        u"SELECT Dno,Eda,Deal,HinNamae,Gaku,Hizuke FROM Dud WHERE CreateAuto=1 ORDER BY Dno,Eda"_s);
}

class TtoTest : public testing::Test {
 protected:
    void bill(int year, int month, int day = 28) {
        BuildMonthLedger({year, month}, DateSerial(year, month, day));
        CarryForwardMonth({year, month});
    }
    static void insert(const QString& into, std::initializer_list<int> numbers, const QString& amount) {
        QString row;
        for (const int number : numbers)
            row += QString::number(number) + u',';
        gDb->Execute(u"INSERT INTO %1 VALUES(%2%3)"_s.arg(into, row, amount));
    }
    void reading(int year, int month, int deal, const QString& charge) {
        insert("Dgd(Nendo,Getudo,Deal,Gaku)", {year, month, deal}, charge);
    }
    void sale(int dno, int eda, int deal, int year, int month, const QString& amount) {
        insert("Dud(Dno,Eda,Deal,Nendo,Getudo,Gaku)", {dno, eda, deal, year, month}, amount);
    }
    void payment(int dno, int deal, int year, int month, const QString& amount) {
        insert("Dny(Dno,Eda,Deal,Nendo,Getudo,Gaku)", {dno, 1, deal, year, month}, amount);
    }
    void customers(QString codes) {
        ScratchStore::run("INSERT INTO Deal(Code) VALUES(" + codes.replace(",", "),(") + ")");
    }
    /// Each has a reading, a sale and a payment in March 2011.
    void twoCustomers() {
        customers(u"1,2"_s);
        for (int deal = 1; deal <= 2; ++deal) {
            reading(2011, 3, deal, u"3000"_s);
            sale(deal, 1, deal, 2011, 3, u"700"_s);
            payment(deal, deal, 2011, 3, u"1200"_s);
        }
    }

    static int errorOf(const std::function<void()>& run) {
        try {
            run();
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }

    ScratchStore store;
};

TEST_F(TtoTest, AMonthIsRolledUp) {
    customers(u"1,2,3"_s);
    reading(2011, 3, 1, u"4827"_s);
    reading(2011, 3, 2, u"1800.5"_s);
    sale(1, 1, 1, 2011, 3, u"1990"_s);
    sale(1, 2, 1, 2011, 3, u"99"_s);
    sale(2, 1, 1, 2011, 4, u"5000"_s);  // another month
    sale(3, 1, 9, 2011, 3, u"-300"_s);  // a customer who is not on the list
    payment(1, 2, 2011, 3, u"1000"_s);
    payment(2, 2, 2011, 3, u"800.5"_s);
    bill(2011, 3);
    EXPECT_EQ(Ledger(2011, 3), (QStringList{
                                   u"1|0|4827|2089|6916|0|0"_s,
                                   u"2|0|1800.5|0|1800.5|1800.5|0"_s,
                                   u"3|0|0|0|0|0|0"_s,  // quiet, and still in the ledger
                                   u"9|0|0|-300|-300|0|0"_s,
                               }));
    EXPECT_TRUE(Ledger(2011, 4).isEmpty());
    EXPECT_EQ(ReadClosingDate({2011, 3}), u"2011/03/28"_s);
    EXPECT_EQ(ReadClosingDate({2011, 4}), QString());
}

TEST_F(TtoTest, TheBalanceIsCarriedFromTheLatestEarlierMonth) {
    customers(u"1,2,3"_s);
    ScratchStore::run(QStringLiteral(
        // Entered but never billed: Gaku is 0, gas and sales are carried all the same.
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku) "
        "VALUES(1,2010,12,1000,4000,500,1500);\n"
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(1,2010,11,77777);\n"
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(2,2011,4,88888);\n"
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg) VALUES(3,2011,3,2500,1);\n"
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(3,2011,2,66666);\n"));
    bill(2011, 3);
    EXPECT_EQ(Ledger(2011, 3), (QStringList{
                                   u"1|4000|0|0|0|0|0"_s,  // over a gap and a year's end
                                   u"2|0|0|0|0|0|0"_s,     // a later row is no earlier row
                                   u"3|2500|0|0|0|0|1"_s,  // set by hand
                               }));
    EXPECT_EQ(PriorBalance(3, {2011, 4}), Variant(Currency(2500)));
    EXPECT_TRUE(PriorBalance(2, {2011, 3}).IsEmpty());
}

TEST_F(TtoTest, ASecondRunClearsSalesAloneOfWhatLostItsSources) {
    twoCustomers();
    bill(2011, 3);
    ScratchStore::run(
        u"DELETE FROM Dgd WHERE Deal=1;\nDELETE FROM Dud WHERE Deal=1;\n"
        "DELETE FROM Dny WHERE Deal=1;\nUPDATE Dgd SET Gaku=3100;\n"_s);
    sale(3, 1, 2, 2011, 3, u"50"_s);
    bill(2011, 3, 30);
    EXPECT_EQ(Ledger(2011, 3), (QStringList{u"1|0|3000|0|3000|1200|0"_s, u"2|0|3100|750|3850|1200|0"_s}));
    EXPECT_EQ(ReadClosingDate({2011, 3}), u"2011/03/30"_s);
}

/// Writes down the stages, and wants no more at a step of one of them.
class Stopping : public Progress {
 public:
    Stopping(QString what, int done) : what_(std::move(what)), done_(done) {}
    void stage(const QString& what, bool mayStop) override {
        present_ = what;
        stages += mayStop ? what : what + u'!';
    }
    void step(int done, int /*total*/) override {
        if (present_ == what_ && done == done_) throw RuntimeError(CancelledByOperator);
    }

    QStringList stages;

 private:
    QString what_;
    int done_;
    QString present_;
};

TEST_F(TtoTest, ARunStoppedBetweenTwoCustomersIsMendedByTheNext) {
    twoCustomers();
    struct Case {
        const char16_t* stage;
        const char16_t* second;  ///< the ledger row of the customer before whom the run stopped
    };
    for (const Case& c :
         {Case{u"検針", nullptr}, {u"売上", u"2|0|3000|0|0|0|0"}, {u"入金", u"2|0|3000|700|0|0|0"}}) {
        gDb->Execute(u"DELETE FROM TtoD"_s);
        Stopping progress(QString::fromUtf16(c.stage), 1);
        EXPECT_THROW(BuildMonthLedger({2011, 3}, DateSerial(2011, 3, 28), progress), RuntimeError);
        EXPECT_EQ(Ledger(2011, 3).value(1), QString::fromUtf16(c.second ? c.second : u""));
        EXPECT_EQ(ReadClosingDate({2011, 3}), QString()) << "not closed";
    }
    Stopping never({}, 0);
    BuildMonthLedger({2011, 3}, DateSerial(2011, 3, 28), never);
    CarryForwardMonth({2011, 3}, never);
    EXPECT_EQ(never.stages, u"検針 リース料 売上 入金 繰越!"_s.split(u' '));
    EXPECT_EQ(Ledger(2011, 3), (QStringList{u"1|0|3000|700|3700|1200|0"_s, u"2|0|3000|700|3700|1200|0"_s}));
}

TEST_F(TtoTest, LeaseSlips) {
    ScratchStore::run(
        u"INSERT INTO Deal(Code,ACU,Keihou) VALUES(1,1,1),(2,0,1),(3,0,0),(4,1,0);\n"
        "UPDATE UserOP SET contents='300' WHERE Code=2;\n"
        "UPDATE UserOP SET contents='1,050円' WHERE Code=3;\n"_s);
    sale(40, 1, 3, 2011, 3, u"10"_s);
    bill(2011, 3);
    EXPECT_EQ(LeaseLines(), (QStringList{
                                u"41|1|1|ACUリース代|1050|2011/03/28"_s,
                                u"41|2|1|警報機リース代|300|2011/03/28"_s,
                                u"42|1|2|警報機リース代|300|2011/03/28"_s,
                                u"43|1|4|ACUリース代|1050|2011/03/28"_s,
                            }));
    EXPECT_EQ(Ledger(2011, 3), (QStringList{u"1|0|0|1350|1350|0|0"_s, u"2|0|0|300|300|0|0"_s,
                                            u"3|0|0|10|10|0|0"_s, u"4|0|0|1050|1050|0|0"_s}));

    // Fee and flags of today under the old number; who stopped leasing keeps the slip; a line typed under a
    // generated number goes with it.
    ScratchStore::run(
        u"UPDATE UserOP SET contents='350' WHERE Code=2;\n"
        "UPDATE Deal SET ACU=0 WHERE Code=1;\nUPDATE Deal SET ACU=0 WHERE Code=4;\n"_s);
    sale(42, 9, 2, 2011, 3, u"9999"_s);
    bill(2011, 3, 31);
    EXPECT_EQ(LeaseLines(), (QStringList{
                                u"41|1|1|警報機リース代|350|2011/03/31"_s,
                                u"42|1|2|警報機リース代|350|2011/03/31"_s,
                                u"43|1|4|ACUリース代|1050|2011/03/28"_s,
                            }));
    EXPECT_EQ(Ledger(2011, 3).value(1), u"2|0|0|350|350|0|0"_s);
}

TEST_F(TtoTest, AFeePastSixteenBitsStopsTheRunAndWhatWasDoneStays) {
    ScratchStore::run(
        u"INSERT INTO Deal(Code,Keihou) VALUES(1,1);\n"
        "UPDATE UserOP SET contents='32768' WHERE Code=2;\n"_s);
    reading(2011, 3, 1, u"3000"_s);
    EXPECT_EQ(errorOf([this] { bill(2011, 3); }), 6);
    EXPECT_EQ(Ledger(2011, 3), QStringList{u"1|0|3000|0|0|0|0"_s});
}

TEST_F(TtoTest, CustomersAreCountedInSixteenBits) {
    customers(u"1"_s);
    for (int count = 1; count <= 16384; count *= 2)
        gDb->Execute(u"INSERT INTO Deal(Code) SELECT Code+%1 FROM Deal"_s.arg(count));
    EXPECT_EQ(errorOf([] { CarryForwardMonth({2011, 3}); }), 6);
    EXPECT_TRUE(Ledger(2011, 3).isEmpty());
}

}  // namespace
}  // namespace akarix
