#include <QDir>
#include <QScrollBar>
#include <QTemporaryDir>

#include "output/PB.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/forms/Form.h"
#include "platform/print/PdfText.h"
#include "platform/print/PreviewPages.h"
#include "platform/print/Printer.h"
#include "platform/print/PrinterSurface.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Plays on the real surfaces: the printer is a PDF file.
class PbPaperTest : public ScreenTest {
 protected:
    void SetUp() override {
        Printer::Current().UsePdf(path("out.pdf"));
        gPrintPreview = false;
    }
    void TearDown() override {
        gPrintPreview = false;
        ScreenTest::TearDown();
    }

    QString path(const QString& name) const { return folder_.filePath(name); }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files, QDir::Name); }
    static int print(const QStringList& script, QString* text = nullptr) {
        PBInit();
        for (const QString& line : script)
            PBAddLine(line);
        return Raised([] { PBRun(); }, text);
    }
    QRectF box(const QString& word) const { return PdfBox(path("out.pdf"), word); }

 private:
    QTemporaryDir folder_;
};

TEST_F(PbPaperTest, TextsStandWhereTheScriptSays) {
    EXPECT_EQ(
        print({"<AREA>11906,8391", "<FONT>ＭＳ 明朝", "<SIZE>12", "<FREE>1000,2000,請求書", "1234", "<RIGHT>",
               "<FREE>0,4000,5678", "<FONT>どこにもない字体", "<LEFT>", "<FREE>0,5000,読める"}),
        0);
    EXPECT_EQ(PdfPages(path("out.pdf")), QStringList("請求書12345678読める"));
    const QRectF left = box("請求書1234");
    EXPECT_NEAR(left.left(), 50, 1);
    EXPECT_NEAR(left.center().y(), 106, 3);
    EXPECT_NEAR(left.width(), 3 * 12 + 4 * 6, 2);
    EXPECT_NEAR(box("5678").right(), 11906 / 20.0, 1);
}

TEST_F(PbPaperTest, EachPageIsAJobAndTheLastCallForItAddsNone) {
    print({"一"});
    PrinterSurface::Current().EndDoc();
    print({});
    print({"二"});
    EXPECT_THAT(files(), testing::ElementsAre("out (2).pdf", "out.pdf"));
    EXPECT_EQ(PdfPages(path("out (2).pdf")), QStringList("二"));
}

TEST_F(PbPaperTest, NothingOfAPageThatFailedIsPrinted) {
    QString text;
    EXPECT_EQ(print({"half", "<FONT>CODE39"}, &text), 380);
    EXPECT_EQ(text, "フォント 'CODE39' がありません。");
    EXPECT_EQ(print({"half", "<SIZE>0"}), 380);
    EXPECT_EQ(print({"half", "<AREA>0,100"}), 380);
    EXPECT_THAT(files(), testing::IsEmpty());
    EXPECT_EQ(print({"<FONT>ＭＳ 明朝", "whole"}), 0);
    EXPECT_EQ(PdfPages(path("out.pdf")), QStringList("whole"));

    Printer::Current().UsePdf(path("no such folder/out.pdf"));
    EXPECT_EQ(print({"lost"}), 482);
    Printer::Current().UsePdf(path("later.pdf"));
    EXPECT_EQ(print({"found"}), 0);
    EXPECT_EQ(PdfPages(path("later.pdf")), QStringList("found"));
}

TEST_F(PbPaperTest, AMissingBarcodeFontDoesNotSpoilTheNextReport) {
    EXPECT_EQ(print({"<FONT>CODE39"}), 380);
    PBInit();
    PB().ColCount = 1;  // measured in a font of its own, named without a character set
    PBAddLine("next");
    EXPECT_NO_THROW(PBRun());
    EXPECT_EQ(PdfPages(path("out.pdf")), QStringList("next"));
}

TEST_F(PbPaperTest, AFontHoldsForTheNextReportButThePaperDoesNot) {
    print({"<AREA>4000,4000", "<SIZE>36", "a"});
    Printer::Current().UsePdf(path("out.pdf"));
    print({"<FREE>6000,12000,bb"});
    EXPECT_NEAR(box("bb").width(), 36, 2);
    print({"<SIZE>10"});
}

TEST_F(PbPaperTest, ThePreviewShowsThePageAndPrintsNothing) {
    gPrintPreview = true;
    clerk.expect("FM", [&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "印刷プレビュー - 1 頁");
        auto& view = clerk.find<PreviewPages>("Pages");
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
        window.resize(window.width(), window.height() / 2);
        clerk.press(Qt::Key_PageDown);
        EXPECT_GT(view.verticalScrollBar()->value(), 0);
        clerk.press(Qt::Key_Escape);
    });
    EXPECT_EQ(print({"<FONT>ＭＳ 明朝", "<SIZE>12", "<FREE>1000,460,請求書"}), 0);
    EXPECT_EQ(print({"half", "<SIZE>0"}), 380);
    EXPECT_THAT(files(), testing::IsEmpty());
}

TEST_F(PbPaperTest, ARunIsShownPageByPageUntilItIsStopped) {
    gPrintPreview = true;
    AnswerPrinter(clerk, path("out.pdf"));
    QStringList titles;
    for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
        clerk.expect("FM", [&, key](QWidget& window) {
            titles += window.windowTitle();
            clerk.press(key);
        });
    }
    clerk.answerConfirm(true);
    TrapPrinting([&] {
        PrintRun run("請求書");
        for (int i = 0; i < 5; ++i) {
            run.next(i, 5);
            EXPECT_LT(i, 2);
            PBInit();
            PBAddLine("page");
            PBRun();
        }
    });
    EXPECT_EQ(titles,
              QStringList({"印刷プレビュー - 1 頁（1 / 5 件目）", "印刷プレビュー - 2 頁（2 / 5 件目）"}));
    clerk.expect("FM", [&](QWidget& window) {
        EXPECT_EQ(window.findChild<QWidget*>("Stop"), nullptr);
        clerk.press(Qt::Key_Escape);
    });
    EXPECT_EQ(print({"afresh"}), 0);
    EXPECT_THAT(files(), testing::IsEmpty());
}

}  // namespace
}  // namespace akarix
