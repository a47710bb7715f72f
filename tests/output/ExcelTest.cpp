#include <xlsxwriter.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "output/EX.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/dao/DBEngine.h"
#include "platform/dao/Database.h"
#include "platform/dao/Workspace.h"
#include "platform/forms/Guard.h"
#include "platform/forms/SessionEnd.h"
#include "platform/print/PdfText.h"
#include "platform/print/PreviewPages.h"
#include "platform/print/Printer.h"
#include "support/ListScreen.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

constexpr int Rows = 5;
constexpr int FirstRow = 2;

/// Writes down how it is called, and the page and the record into the sheet.
class Report : public ReportForm {
 public:
    void ClrDetail() override {
        calls += "clear";
        ExcelCell("A3:B9", "");
    }
    void PrintOutHead(int page) override {
        calls += QString("head %1").arg(page);
        ExcelCell("A1", QString("頁%1").arg(page));
    }
    void PrintOutDetail(int row, Recordset&) override {
        calls += QString("row %1").arg(row);
        ExcelCell(QString("A%1").arg(row), QString("行%1").arg(++records_));
        if (records_ == failAt) throw RuntimeError(13);
        if (records_ == 6 && atRow6) atRow6();
    }
    void PrintOutDetailGokei(int line, int firstRow, int page) override {
        calls += QString("total %1 %2 %3").arg(line).arg(firstRow).arg(page);
        ExcelCell("B9", "合計");
    }

    QStringList calls;
    int failAt = 0;
    std::function<void()> atRow6;

 private:
    int records_ = 0;
};

class ExcelTest : public ScreenTest {
 protected:
    void SetUp() override {
        before_ = QDir::currentPath();
        QDir::setCurrent(folder.path());
        QDir(folder.path()).mkdir("Prt");
        writeTemplate("台帳", "雛形");
        Printer::Current().UsePdf(folder.filePath("out.pdf"));
        gPrintPreview = false;
    }
    void TearDown() override {
        ExcelClose();
        gPrintPreview = false;
        QDir::setCurrent(before_);
        ScreenTest::TearDown();
    }

    void writeTemplate(const QString& name, const QString& text, const char* header = "") {
        lxw_workbook* book = workbook_new(QString("Prt/%1.xlsx").arg(name).toUtf8().constData());
        lxw_worksheet* sheet = workbook_add_worksheet(book, "Sheet1");
        worksheet_write_string(sheet, 0, 3, text.toUtf8().constData(), nullptr);
        worksheet_set_header(sheet, header);
        ASSERT_EQ(workbook_close(book), LXW_NO_ERROR);
    }
    QStringList printed(const QString& name = "out.pdf") const {
        const QString path = folder.filePath(name);
        return QFile::exists(path) ? PdfPages(path) : QStringList();
    }
    void printPage(const QString& text) {
        ExcelCell("A1", text);
        ExcelPrintPage();
    }

    QTemporaryDir folder;

 private:
    QString before_;
};

TEST_F(ExcelTest, PagesOfOneOpeningStandInOneFileWithTheValuesOfTheirTime) {
    writeTemplate("台帳", "雛形", "&P頁");
    ExcelOpen("台帳");
    printPage("一");
    printPage("二");
    ExcelClose();
    EXPECT_EQ(printed(), QStringList({"1頁一雛形", "2頁二雛形"}));

    ExcelOpen("台帳");  // fresh from the template, into a file of its own
    ExcelPrintPage();
    ExcelClose();
    EXPECT_EQ(printed("out (2).pdf"), QStringList({"1頁雛形"}));
}

TEST_F(ExcelTest, AChangedTemplateIsReadAgain) {
    ExcelOpen("台帳");
    ExcelClose();
    writeTemplate("台帳", "新しい雛形");
    ExcelOpen("台帳");
    ExcelPrintPage();
    ExcelClose();
    EXPECT_EQ(printed(), QStringList({"新しい雛形"}));
}

TEST_F(ExcelTest, ErrorsNameWhatIsWrong) {
    QString text;
    EXPECT_EQ(Raised([] { ExcelOpen("無い"); }, &text), 1004);
    EXPECT_EQ(text, "テンプレート 'Prt/無い.xlsx' が見つかりません。");
    EXPECT_EQ(Raised([] { ExcelCell("A1", "x"); }), 91);

    ExcelOpen("台帳");
    EXPECT_EQ(Raised([] { ExcelCell("no address", "x"); }), 1004);
    Printer::Current().UsePdf(folder.filePath("gone/out.pdf"));
    EXPECT_EQ(Raised([] { ExcelPrintPage(); }, &text), 482);
    EXPECT_TRUE(text.contains("gone"));
}

TEST_F(ExcelTest, PagesPrintedBeforeAnErrorStayPrinted) {
    ExcelOpen("台帳");
    printPage("前");
    clerk.settle();  // the run has died, the program waits for its clerk
    EXPECT_EQ(printed(), QStringList({"前雛形"}));

    ExcelOpen("台帳");
    printPage("後");
    ExcelClose();
    EXPECT_EQ(printed("out (2).pdf"), QStringList({"後雛形"}));
}

class PagedTest : public ExcelTest {
 protected:
    void SetUp() override {
        ExcelTest::SetUp();
        database_ = DBEngine::Workspaces(0).CreateDatabase(folder.filePath("a.MDB"), "MS Access;PWD=x");
        database_->Execute("CREATE TABLE Test (N Integer)");
    }
    void TearDown() override {
        ExcelTest::TearDown();
        database_->Close();
    }
    void run(Report& report, int records) {
        database_->Execute("DELETE FROM Test");
        for (int n = 1; n <= records; ++n)
            database_->Execute(QString("INSERT INTO Test (N) VALUES (%1)").arg(n));
        ExcelOpenPaged("台帳", Rows, FirstRow);
        SetReport(&report, database_->OpenRecordset("SELECT * FROM Test ORDER BY N"));
        ExcelRunPaged();
    }

 private:
    Database* database_ = nullptr;
};

TEST_F(PagedTest, PagesAndTheTotalsPlace) {
    struct Case {
        int records;
        QString total;
        QStringList pages;
    };
    const Case cases[] = {
        {1, "total 2 2 1", {"頁1雛形行1合計"}},
        {4, "total 1 2 2", {"頁1雛形行1行2行3行4"}},  // the total alone is not worth a page
        {5, "total 2 2 2", {"頁1雛形行1行2行3行4", "頁2雛形行5合計"}},
        {9, "total 2 2 3", {"頁1雛形行1行2行3行4", "頁2雛形行5行6行7行8", "頁3雛形行9合計"}},
    };
    for (const Case& c : cases) {
        Printer::Current().UsePdf(folder.filePath("out.pdf"));
        Report report;
        run(report, c.records);
        EXPECT_EQ(report.calls.last(), c.total) << c.records;
        EXPECT_EQ(printed(), c.pages) << c.records;
    }
}

TEST_F(PagedTest, OrderOfHeadAndClearing) {
    Report turned;
    run(turned, 5);
    EXPECT_EQ(turned.calls.join(u' '), "clear head 1 row 3 row 4 row 5 row 6 clear head 2 row 3 total 2 2 2");
    Report full;
    run(full, 4);
    EXPECT_EQ(full.calls.join(u' '), "clear head 1 row 3 row 4 row 5 row 6 head 2 clear total 1 2 2");
}

TEST_F(PagedTest, AStoppedRunKeepsThePagesThatAreWhole) {
    SessionEnd::Await([] {});
    AnswerPrinter(clerk, folder.filePath("list.pdf"));
    QLineEdit desk;
    desk.show();
    desk.setFocus();
    clerk.settle();
    RunGuarded([&] {
        TrapPrinting([&] {
            const PrintRun printing("台帳");
            Report report;
            report.atRow6 = [] { SessionEnd::Request(); };
            run(report, 9);
        });
    });
    EXPECT_EQ(printed("list.pdf"), QStringList({"頁1雛形行1行2行3行4"}));
    // The line waits until a window has the keyboard again.
    const QString told =
        "6 / 9 まで進んだところで中止しました。\n" + folder.filePath("list.pdf") + " に書きました。";
    EXPECT_TRUE(QTest::qWaitFor([&] { return clerk.isOpen("Notice") && clerk.text("Notice") == told; }, 2000))
        << clerk.text("Notice").toStdString();
    SessionEnd::Await([] {});
    Report next;
    run(next, 1);
    EXPECT_EQ(printed("list (2).pdf"), QStringList({"頁1雛形行1合計"}));
}

TEST_F(PagedTest, PreviewTellsWhetherMoreFollowsAndPrintsNothing) {
    gPrintPreview = true;
    AnswerPrinter(clerk, folder.filePath("list.pdf"));
    QStringList shown;
    for (int page = 0; page < 3; ++page) {
        clerk.expect("Preview_frm", [&](QWidget& window) {
            EXPECT_EQ(clerk.find<PreviewPages>("Pages").pageCount(), 1);
            shown += clerk.text("Place") + (window.findChild<QWidget*>("Stop") ? "+" : "");
            clerk.click("Close");
        });
    }
    Report report;
    const PrintRun printing("台帳");
    run(report, 9);
    EXPECT_EQ(shown, QStringList({"1 頁+", "2 頁+", "3 頁"}));
    EXPECT_EQ(QDir(folder.path()).entryList({"*.pdf"}), QStringList());
}

TEST_F(PagedTest, TheNextReportStartsAfreshAfterAnError) {
    Report broken;
    broken.failAt = 2;
    EXPECT_EQ(Raised([&] { run(broken, 3); }), 13);
    Report sound;
    run(sound, 1);
    EXPECT_EQ(printed(), QStringList({"頁1雛形行1合計"}));
}

}  // namespace
}  // namespace akarix
