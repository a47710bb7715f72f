#include "reports/InvoiceSheet.h"

#include "output/EX.h"
#include "platform/print/PdfText.h"
#include "platform/print/Printer.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/WorkbookWriter.h"
#include "support/CaseFile.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "xlsxwriter.h"

namespace akarix {
namespace {

/// March 2024 of a few customers, on the delivered template.
class InvoiceSheet : public testing::Test {
 protected:
    void SetUp() override {
        gPrintPreview = false;
        QDir().mkdir("Prt");
        QFile::copy(AKARIX_SOURCE_DIR "/Prt/請求書.xlsx", kTemplate);
        Printer::Current().UsePdf(store.path("out.pdf"));
    }
    void TearDown() override { Printer::Current().UseQueue({}); }

    static void customer(int code, const QString& ledger = "0,0,0", const QString& name = "山田") {
        ScratchStore::run(QString("INSERT INTO Deal(Code,Namae) VALUES(%1,'%2');\n"
                                  "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,Gaku,NGaku) "
                                  "VALUES(%1,2024,3,%3)")
                              .arg(QString::number(code), name, ledger));
    }
    /// \param meters ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,Gaku,Hi; empty for no reading
    static void reading(int code, const QString& meters, int getudo = 3) {
        if (meters.isEmpty()) return;
        gDb->Execute(QString("INSERT INTO Dgd(Deal,Nendo,Getudo,ZenkaiMeter,KoukanMeter,KoukanGoMeter,"
                             "KonkaiMeter,Suu,Gaku,Hi) VALUES(%1,2024,%2,")
                         .arg(code)
                         .arg(getudo) +
                     meters + ")");
    }
    /// The n-th slip is of the n-th of March and costs 2000 + 2n.
    static void slips(int code, int count) {
        for (int n = 1; n <= count; ++n) {
            ScratchStore::run(
                QString("INSERT INTO Dud(Dno,Eda,Hizuke,Deal,HinNamae,Suu,Tanka,Gaku,Nendo,Getudo) "
                        "VALUES(%1,%2,CDATE('2024/03/%2'),%1,'品%2',2,%3,%4,2024,3)")
                    .arg(code)
                    .arg(n)
                    .arg(1000 + n)
                    .arg(2000 + 2 * n));
        }
    }
    /// The pages, without blanks. What stands in a row of the sheet is read from the left to the right.
    QStringList print(const std::vector<int>& codes, int error = 0) {
        QFile::remove("out.pdf");
        Printer::Current().UsePdf(store.path("out.pdf"));
        OpenInvoiceSheet();
        int raised = 0;
        try {
            for (const int code : codes)
                PrintInvoice({code, 2024, 3});
        } catch (const RuntimeError& broken) {
            raised = broken.number();
        }
        EXPECT_EQ(raised, error);
        ExcelClose();
        return QFile::exists("out.pdf") ? PdfPages("out.pdf") : QStringList();
    }

    const QString kTemplate = "Prt/請求書.xlsx";
    ScratchStore store;
};

const char* const kCases = AKARIX_TEST_DATA "/sheets.txt";

QString Twice(const QString& row) {
    return row + row;
}

TEST_F(InvoiceSheet, BothHalvesHoldTheWholeInvoice) {
    customer(1, "12000,6827,5000");
    reading(1, "100.5,0,0,112.8,12.3,4827,20");
    reading(1, "90,0,0,100.5,10.5,4000,21", 2);
    slips(1, 1);
    ScratchStore::run(
        "INSERT INTO Dud(Dno,Eda,Deal,HinNamae,Gaku,Nendo,Getudo) "
        "VALUES(101,2,1,'値引',-1500,2024,3)");
    const QStringList pages = print({1});
    ASSERT_EQ(pages.size(), 1);
    for (const char* row :
         {"山田様", "03/20当月メーター指示数112.8", "02/21前月メーター指示数100.5", "当月御使用量12.3",
          "03/01品12.01,0012,002", "値引-1,500", "03/20当月ガス料金指針:112.812.34,827"})
        EXPECT_TRUE(pages[0].contains(Twice(row))) << row << " in " << pages[0].toStdString();
    // 12,000 - 5,000 + 502 + 6,827: the slips count beside the ledger's amount, which holds them.
    EXPECT_EQ(pages[0].count("¥14,329"), 2) << pages[0].toStdString();
}

TEST_F(InvoiceSheet, AmountsOfEverySize) {
    int code = 0;
    for (const auto& [cells, line] : ReadTable(kCases, "amounts")) {
        customer(++code, cells[0]);
        reading(code, "NULL,NULL,NULL,NULL,NULL,NULL,20");
        ScratchStore::run(
            QString("INSERT INTO Dud(Dno,Eda,Deal,Nendo,Getudo) VALUES(%1,1,%1,2024,3)").arg(code));
        const QString page = print({code}).value(0);
        EXPECT_TRUE(page.contains(cells[1] + "※")) << line << page.toStdString();
        EXPECT_TRUE(page.contains(Twice("03/20当月ガス料金指針:0"))) << page.toStdString();
    }
}

TEST_F(InvoiceSheet, MetersAndTheirDates) {
    int code = 0;
    for (const auto& [cells, line] : ReadTable(kCases, "meters")) {
        customer(++code);
        reading(code, cells[0]);
        reading(code, cells[1], 2);
        const QString block = print({code}).value(0).section("領収印", 2).section("月日", 0, 0);
        EXPECT_EQ(block, Twice(cells[2]) + Twice(cells[3]) + Twice(cells[4])) << line;
    }
}

TEST_F(InvoiceSheet, EightLinesToAPage) {
    struct Case {
        int slips;
        int pages;
    };
    for (const auto& [count, expected] : {Case{7, 1}, {8, 2}, {15, 2}, {16, 3}}) {
        customer(count, "1000,0,0");
        reading(count, "100,0,0,112,12,345,20");
        slips(count, count);
        const QStringList pages = print({count});
        ASSERT_EQ(pages.size(), expected) << count;
        EXPECT_TRUE(pages.last().contains(Twice("03/20当月ガス料金指針:11212.0345"))) << count;
        for (int page = 1; page < pages.size(); ++page) {
            EXPECT_TRUE(pages[page].contains("山田様"));
            EXPECT_FALSE(pages[page].contains("メーター指示数") || pages[page].contains("¥"))
                << "a later page has neither meters nor the amount due: " << pages[page].toStdString();
        }
        if (count == 8) {
            EXPECT_FALSE(pages[1].contains("2,0"))
                << "no price of the page before: " << pages[1].toStdString();
        }
    }
}

TEST_F(InvoiceSheet, OneDocumentWithoutLeavingsOfTheCustomerBefore) {
    customer(1, "5000,0,0", "鈴木");
    reading(1, "100,0,0,112,12,4827,20");
    slips(1, 5);
    customer(2, "0,0,0", "佐藤");
    reading(2, "0,0,0,0,0,0,21");
    customer(3, "0,0,0", "田中");
    reading(3, "0,0,0,5,5,1500,21");
    const QStringList pages = print({3, 1, 2, 99});
    ASSERT_EQ(pages.size(), 3) << "in the order asked for; who is not known gets none";
    EXPECT_TRUE(pages[0].contains("田中") && pages[1].contains("鈴木") && pages[2].contains("佐藤"));
    const QString lines = pages[2].section("単価金額", 2).section("振込先", 0, 0);
    EXPECT_EQ(lines, Twice("03/21当月ガス料金指針:0"));
}

TEST_F(InvoiceSheet, WithoutAReadingTheLastPageIsNotPrinted) {
    customer(1);
    reading(1, "0,0,0,5,5,1500,21");
    customer(2);
    slips(2, 9);
    customer(3);
    reading(3, "0,0,0,5,5,1500,0");
    EXPECT_EQ(print({1, 2}, 13).size(), 2);
    EXPECT_EQ(print({1, 3}, 13).size(), 1);
}

/// What the opening of the invoice's template raises; empty when it is taken.
QString Refusal() {
    QString said;
    try {
        OpenInvoiceSheet();
    } catch (const RuntimeError& error) {
        said = error.description();
    }
    ExcelClose();
    return said;
}

TEST_F(InvoiceSheet, ATemplateThatWouldLoseSomethingIsRefused) {
    const auto make = [this](const char* name, const QString& area, const QString& merged = {}) {
        WorkbookWriter book(kTemplate);
        lxw_worksheet* sheet = workbook_add_worksheet(book.book(), name);
        const std::string printed = area.toStdString();
        worksheet_print_area(sheet, RANGE(printed.c_str()));
        const std::string one = merged.toStdString();
        if (!one.empty()) worksheet_merge_range(sheet, RANGE(one.c_str()), "", nullptr);
        EXPECT_TRUE(book.save());
    };
    for (const auto& [cells, line] : ReadTable(kCases, "templates")) {
        make("Sheet1", cells[0], cells.value(1));
        const QString gap = cells.value(2);
        EXPECT_EQ(Refusal(),
                  gap.isEmpty() ? QString() : "テンプレート '請求書' のセル " + gap + " が印刷されません。")
            << line;
    }
    make("請求書", "A1:AX35");
    EXPECT_EQ(Refusal(), "'請求書.xlsx': シート 'Sheet1' がありません。");
}

}  // namespace
}  // namespace akarix
