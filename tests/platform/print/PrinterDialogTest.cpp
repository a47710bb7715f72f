#include "platform/print/PrinterDialog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QTemporaryDir>

#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/print/AskSavePath.h"
#include "platform/print/FileName.h"
#include "platform/print/PreviewPages.h"
#include "platform/print/Printer.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class PrinterDialogTest : public ScreenTest {
 protected:
    void choosePdf() {
        auto& printers = clerk.find<QListWidget>("Printers");
        printers.setCurrentRow(printers.count() - 1);
    }
    void typePath(const QString& path) {
        clerk.find<TextBox>("Path").SetText(path);
        clerk.find<TextBox>("Path").setFocus();
    }
    static bool cancelled(const QString& document = "請求書") {
        return Raised([&] { ShowPrinter(document); }) == 32755;
    }

    QTemporaryDir folder;
};

TEST_F(PrinterDialogTest, LeavingIsACancel) {
    const QString before = Printer::Current().PdfPath();
    const std::vector<std::function<void(QWidget&)>> ways = {
        [&](QWidget&) { clerk.press(Qt::Key_Escape); },
        [&](QWidget&) { clerk.click("Cancel"); },
        [&](QWidget& dialog) { clerk.closeBox(dialog); },
    };
    for (const auto& way : ways) {
        clerk.expect("Printer_frm", way);
        EXPECT_TRUE(cancelled());
    }
    EXPECT_EQ(Printer::Current().PdfPath(), before);
}

TEST_F(PrinterDialogTest, AFolderThatIsNotThereIsToldAndTheDialogStays) {
    clerk.expect("Printer_frm", [&](QWidget&) {
        choosePdf();
        typePath(folder.filePath("gone/list.pdf"));
        clerk.enter();
        EXPECT_TRUE(clerk.text("Message").contains("ありません")) << clerk.text("Message").toStdString();
        typePath(folder.filePath("list"));
        clerk.enter();
    });
    ShowPrinter("請求書");
    EXPECT_TRUE(Printer::Current().IsPdf());
    EXPECT_EQ(Printer::Current().PdfPath(), folder.filePath("list.pdf"));
}

TEST_F(PrinterDialogTest, AnExistingFileIsTakenAtTheSecondEnter) {
    const QString path = folder.filePath("a.xlsx");
    QFile(path).open(QIODevice::WriteOnly);
    clerk.expect("SaveAs_frm", [&](QWidget&) {
        typePath(path);
        clerk.enter();
        EXPECT_TRUE(clerk.text("Message").contains("上書き"));
        clerk.enter();
    });
    EXPECT_EQ(AskSavePath("保存", "b.xlsx"), path);

    clerk.expect("SaveAs_frm", [&](QWidget&) { clerk.press(Qt::Key_Escape); });
    EXPECT_EQ(AskSavePath("保存", "b.xlsx"), QString());
}

TEST_F(PrinterDialogTest, TheFileIsOfferedByTheReportsName) {
    Printer::Current().UsePdf(folder.filePath("old.pdf"));
    clerk.expect("Printer_frm", [&](QWidget&) {
        choosePdf();
        EXPECT_EQ(clerk.text("Path"), folder.filePath("請求書／4月.pdf"));
        clerk.press(Qt::Key_Escape);
    });
    EXPECT_TRUE(cancelled("請求書/4月"));
}

TEST_F(PrinterDialogTest, NamesBecomeFileNames) {
    EXPECT_EQ(SafeFileName("請求/4月: \"A\""), "請求／4月： ＂A＂");
    QFile(folder.filePath("a.pdf")).open(QIODevice::WriteOnly);
    QFile(folder.filePath("a (2).pdf")).open(QIODevice::WriteOnly);
    EXPECT_EQ(FreePath(folder.filePath("a.pdf")), folder.filePath("a (3).pdf"));
    Printer::Current().UsePdf(folder.filePath("a.pdf"));
    EXPECT_EQ(Printer::Current().NextPdfPath(), folder.filePath("a.pdf")) << "which was chosen";
    EXPECT_EQ(Printer::Current().NextPdfPath(), folder.filePath("a (3).pdf"));
}

class PreviewTest : public ScreenTest {};

TEST_F(PreviewTest, APageThatMoreMayFollowCanBeTheLast) {
    struct Case {
        const char* what;
        bool more;
        std::function<void(QWidget&)> leave;
        bool sure;
        bool goesOn;
        int asked;
    };
    const auto press = [&](int key) { return [&, key](QWidget&) { clerk.press(key); }; };
    for (const Case& c :
         {Case{"Enter", true, press(Qt::Key_Return), true, true, 0},
          {"its button", true, [&](QWidget&) { clerk.click("Close"); }, true, true, 0},
          {"the close box", true, [&](QWidget& window) { clerk.closeBox(window); }, true, true, 0},
          {"the stop", true, [&](QWidget&) { clerk.click("Stop"); }, true, false, 0},
          {"Esc", true, press(Qt::Key_Escape), true, false, 1},
          {"Esc, not sure", true,
           [&](QWidget&) {
               clerk.press(Qt::Key_Escape);
               EXPECT_TRUE(clerk.isOpen("Preview_frm"));
               clerk.enter();
           },
           false, true, 1},
          {"Esc, nothing follows", false, press(Qt::Key_Escape), true, true, 0}}) {
        int asked = 0;
        const PreviewPlace place{"3 頁（2 / 9 件目）", c.more, [&] { return ++asked, c.sure; }};
        clerk.expect("印刷プレビュー - 請求書 3 頁（2 / 9 件目）", [&](QWidget& window) {
            EXPECT_EQ(clerk.text("Place"), place.page);
            EXPECT_EQ(window.findChild<QWidget*>("Stop") != nullptr, c.more);
            c.leave(window);
        });
        EXPECT_EQ(ShowPreview("請求書", {PrintPage{QSizeF(100, 100), [](QPainter&) {}}}, place), c.goesOn)
            << c.what;
        EXPECT_EQ(asked, c.asked) << c.what;
    }
}

TEST_F(PreviewTest, DrawsOnlyWhatIsSeenAndWalksByKeys) {
    std::set<int> drawn;
    std::vector<PrintPage> pages;
    for (int i = 0; i < 100; ++i)
        pages.push_back({QSizeF(595, 842), [i, &drawn](QPainter&) { drawn.insert(i); }});
    clerk.expect("Preview_frm", [&](QWidget&) {
        auto& view = clerk.find<PreviewPages>("Pages");
        view.viewport()->grab();
        EXPECT_LE(drawn.size(), 3u);
        clerk.press(Qt::Key_PageDown);
        EXPECT_EQ(view.currentPage(), 1);
        EXPECT_EQ(clerk.text("Place"), "2 / 100 頁");
        clerk.press(Qt::Key_End);
        view.viewport()->grab();
        EXPECT_EQ(view.currentPage(), 99);
        EXPECT_TRUE(drawn.contains(99));
        view.setZoom(150);
        EXPECT_EQ(view.currentPage(), 99);
        clerk.press(Qt::Key_Escape);
    });
    ShowPreview("一覧", pages);
    EXPECT_FALSE(clerk.isOpen("Preview_frm"));
    EXPECT_LE(drawn.size(), 10u);
}

}  // namespace
}  // namespace akarix
