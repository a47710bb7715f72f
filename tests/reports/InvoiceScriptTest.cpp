#include "reports/InvoiceScript.h"

#include <QFileInfo>

#include "output/PB.h"
#include "platform/print/PdfText.h"
#include "platform/print/Printer.h"
#include "platform/runtime/DateSerial.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Settings.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class InvoiceScript : public testing::Test {
 protected:
    void SetUp() override {
        gPrintPreview = false;
        Printer::Current().UsePdf(store.path("out.pdf"));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Addr1,Addr2) VALUES(7,'山田, 太郎','北町1-2','3号室');\n"
            "INSERT INTO Deal(Code,Namae,NoSeikyu) VALUES(8,'鈴木',1);\n"
            "INSERT INTO Deal(Code) VALUES(9)");
    }
    void TearDown() override { Printer::Current().UseQueue({}); }

    static void reading(const QString& meters) {
        ScratchStore::run(
            "INSERT INTO Dgd(Deal,Nendo,Getudo,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,"
            "Suu,Gaku) VALUES(7,2024,3," +
            meters + ")");
    }
    /// The error that ends the drawing; 0 for none.
    static int draw(int deal, Date issued = DateSerial(2024, 4, 5)) {
        try {
            DrawInvoice({deal, 2024, 3}, issued);
            return 0;
        } catch (const RuntimeError& error) {
            return error.number();
        }
    }
    static QStringList lines(int from = 0) {
        QStringList all(PB().ScriptLines.begin(), PB().ScriptLines.end());
        return all.mid(from);
    }

    ScratchStore store;
};

constexpr int kClosedSet = 3420;
constexpr int kLinesOfCustomer = 8;

TEST_F(InvoiceScript, EndsAtTheBalanceWithNothingPrinted) {
    reading("1234.4,0,0,1300.5,66.1,23456");
    ScratchStore::run(
        "INSERT INTO Dud(Dno,Eda,Deal,Nendo,Getudo,Gaku) VALUES(1,1,7,2024,3,12345678);\n"
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku) VALUES(7,2024,3,100)");
    PB().DetailMode = true;
    EXPECT_EQ(draw(7), kClosedSet);
    EXPECT_TRUE(PB().NoTopRule && PB().NoPageTotals && !PB().DetailMode);
    EXPECT_FALSE(QFileInfo::exists("out.pdf"));
    EXPECT_EQ(lines(), (QStringList{"<FONT>ＭＳ 明朝", "<SIZE>12", "<FREE>1000,0,36", "<FREE>1700,0,04",
                                    "<FREE>2400,0,05", "<FREE>500,460,7", "<FREE>1600,460,山田, 太郎",
                                    "<FREE>360,920,北町1-23号室", "<FREE>1050,1460,　　１３０１",
                                    "<FREE>1050,1960,　　１２３４", "<FREE>1050,2460,　　　　６６",
                                    "<FREE>1280,2960,　２３４５６", "<FREE>1280,3460,３４５６７８"}));
}

TEST_F(InvoiceScript, LeftBlock) {
    struct Case {
        const char* what;
        const char* meters;
        QStringList block;
    };
    const QString noSales = "<FREE>1280,3460,　　　　　　";
    const Case cases[] = {
        {"not read", "", {noSales}},
        {"an exchanged meter starts from its own reading",
         "100,150,7,20,63,0",
         {"<FREE>1050,1460,　　　　２０", "<FREE>1050,1960,　　　　　７", "<FREE>1050,2460,　　　　６３",
          "<FREE>1280,2960,　　　　　　", noSales}},
        {"nothing known",
         "NULL,NULL,NULL,NULL,NULL,NULL",
         {"<FREE>1050,1460,　　　　　　", "<FREE>1050,1960,　　　　　　", "<FREE>1050,2460,　　　　　　",
          "<FREE>1280,2960,　　　　　　", noSales}},
    };
    for (const Case& c : cases) {
        gDb->Execute("DELETE FROM Dgd");
        if (*c.meters) reading(c.meters);
        EXPECT_EQ(draw(7), kClosedSet);
        EXPECT_EQ(lines(kLinesOfCustomer), c.block) << c.what;
    }
}

TEST_F(InvoiceScript, WhoIsPassedOver) {
    PBInit();
    for (const int deal : {8, 77}) {
        EXPECT_EQ(draw(deal), 0) << deal;
        EXPECT_EQ(lines(), QStringList());
    }
    EXPECT_EQ(draw(9, Date()), kClosedSet) << "neither a name nor a date of issue is asked for";
    EXPECT_EQ(lines().mid(2, 6), (QStringList{"<FREE>1000,0,-89", "<FREE>1700,0,12", "<FREE>2400,0,30",
                                              "<FREE>500,460,9", "<FREE>1600,460,", "<FREE>360,920,"}));
}

TEST_F(InvoiceScript, TheAccount) {
    const QStringList marks{"<SIZE>9",           "<FREE>1690,4360,○", "<FREE>1690,4840,○",
                            "<FREE>3260,4360,○", "<FREE>3260,4840,○", "<FREE>4800,4360,○",
                            "<FREE>4800,4840,○", "<FREE>6430,4360,○", "<FREE>6430,4840,○"};
    struct Case {
        const char* what;
        int zenkaiGaku;
        InvoiceReading reading;
        bool slips, ledger;
        QStringList lines;
    };
    const QStringList slips{"<FREE>3300,%1,03 09", "<FREE>4200,%1,ホース, 2m", "<FREE>7860,%1,  1980",
                            "<FREE>3300,%2,",      "<FREE>4200,%2,",           "<FREE>7860,%2,      "};
    const auto at = [&slips](int first) { return slips.join('\n').arg(first).arg(first + 500).split('\n'); };
    InvoiceReading read;
    read.konkaiMeter = 112;
    InvoiceReading exchanged = read;
    exchanged.zenkaiMeter = Currency(100);
    exchanged.koukanMeter = Currency::FromScaled(1505000);
    const QStringList carried{"<FREE>4200,1460,前月繰越", "<FREE>7860,1460,  5000"};
    const Case cases[] = {
        {"nothing", 0, {}, false, false, {}},
        {"a credit is not carried", -5000, {}, false, true, {}},
        {"slips from the top", 0, {}, true, false, at(1460)},
        {"carried, then slips", 5000, {}, true, false, carried + at(1960)},
        {"all", 5000, exchanged, true, true,
         carried + QStringList{"<FREE>4200,1960,メータ交換までの使用量", "<FREE>7860,1960,50.5"} + at(2460) +
             QStringList{"<FREE>1280,3860,　１１８２７"}},
        {"a credit lowers the total", -5000, read, false, true, {"<FREE>1280,3860,　　１８２７"}},
        {"no reading, no total", 5000, {}, false, true, carried},
        {"no ledger, no total", 5000, read, false, false, carried},
    };
    for (const Case& c : cases) {
        ScratchStore::run("DELETE FROM Dud;\nDELETE FROM TtoD");
        if (c.slips) {
            ScratchStore::run(
                "INSERT INTO Dud(Dno,Eda,Deal,Nendo,Getudo) VALUES(2,1,7,2024,3);\n"
                "INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinNamae,Gaku,Nendo,Getudo) "
                "VALUES(1,1,#2024/03/09#,7,'ホース, 2m',1980,2024,3)");
        }
        if (c.ledger) ScratchStore::run("INSERT INTO TtoD(Deal,Nendo,Getudo,Gaku) VALUES(7,2024,3,6827)");
        PBInit();
        AddInvoiceAccount({7, 2024, 3}, c.reading, Currency(c.zenkaiGaku));
        EXPECT_EQ(lines(), c.lines + marks) << c.what;
    }
    PBRun();
    EXPECT_EQ(PdfPages("out.pdf").value(0).count("○"), 8) << "the engine takes the script";
}

}  // namespace
}  // namespace akarix
