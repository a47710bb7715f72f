#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/print/PaperFont.h"
#include "platform/print/PdfText.h"
#include "platform/print/PrintJob.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Literals.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

PrintPage PageSaying(const QString& text, QSizeF paper = QSizeF(595.276, 841.89)) {
    return {paper, [text](QPainter& painter) {
                painter.setFont(FontOnPaper({u"ＭＳ 明朝"_s, 12}).font());
                painter.drawText(QPointF(1000, 1000), text);
            }};
}

class PrintSinkTest : public testing::Test {
 protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder;
};

TEST_F(PrintSinkTest, AllPagesOfADocumentStandInOneFileInOrder) {
    Printer::Current().UsePdf(path("list.pdf"));
    const auto sink = OpenPrinterSink("請求一覧表");
    sink->add({PageSaying("一枚目"), PageSaying("二枚目")});
    sink->add({PageSaying("横長の三枚目", QSizeF(841.89, 595.276))});
    EXPECT_FALSE(files().contains("list.pdf")) << "the file takes its place when it is complete";
    sink->finish();

    EXPECT_THAT(files(), testing::ElementsAre("list.pdf"));
    EXPECT_EQ(PdfPages(path("list.pdf")), QStringList({"一枚目", "二枚目", "横長の三枚目"}));
}

TEST_F(PrintSinkTest, FurtherDocumentsOfOneChoiceGetNumberedFiles) {
    Printer::Current().UsePdf(path("price.pdf"));
    for (const char* text : {"1", "2", "3"}) {
        const auto sink = OpenPrinterSink("価格表");
        sink->add({PageSaying(text)});
        sink->finish();
    }
    EXPECT_THAT(files(), testing::ElementsAre("price (2).pdf", "price (3).pdf", "price.pdf"));
    EXPECT_EQ(PdfPages(path("price (2).pdf")), QStringList("2"));
}

TEST_F(PrintSinkTest, ADroppedDocumentLeavesTheOldFileAlone) {
    QFile old(path("list.pdf"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    Printer::Current().UsePdf(path("list.pdf"));
    OpenPrinterSink("a")->add({PageSaying("half")});
    OpenPrinterSink("without pages")->finish();

    EXPECT_THAT(files(), testing::ElementsAre("list.pdf"));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
}

TEST_F(PrintSinkTest, TargetsThatCannotBeWrittenRaise482) {
    QDir(folder.path()).mkdir("taken.pdf");
    for (const char* target : {"no such folder/a.pdf", "taken.pdf"}) {
        Printer::Current().UsePdf(path(target));
        EXPECT_EQ(Raised([] { OpenPrinterSink("a"); }), 482) << target;
    }
    Printer::Current().UseQueue("居ないプリンタ");
    EXPECT_EQ(Raised([] { OpenPrinterSink("a"); }), 482);
}

TEST(PrintableCornerTest, IsWhereThePrinterCanPrint) {
    const auto corner = [](QPageLayout::Orientation turned, QPageLayout::Unit unit, QMarginsF unprintable) {
        QPageLayout layout(QPageSize(QPageSize::A4), turned, QMarginsF(), unit, unprintable);
        layout.setMode(QPageLayout::FullPageMode);
        return PrintableCorner(layout);
    };
    EXPECT_EQ(corner(QPageLayout::Portrait, QPageLayout::Point, {12, 18, 12, 36}), QPointF(240, 360));
    EXPECT_EQ(corner(QPageLayout::Landscape, QPageLayout::Inch, {0.25, 0.5, 0, 0}), QPointF(360, 720));
    EXPECT_EQ(corner(QPageLayout::Portrait, QPageLayout::Point, {}), QPointF());
}

TEST(PaperFontTest, SpellingsOfAFontGiveTheSameOne) {
    const auto family = [](const char* name) {
        return FontOnPaper({QString(name), 10}).font().families().front();
    };
    EXPECT_EQ(family("ＭＳ Ｐゴシック"), family("MS PGothic"));
    EXPECT_EQ(family("ＭＳ 明朝"), family("MS Mincho"));
    EXPECT_EQ(family("MS ゴシック"), family("ＭＳ ゴシック"));
    EXPECT_NE(family("ＭＳ ゴシック"), family("ＭＳ Ｐゴシック"));
}

}  // namespace
}  // namespace akarix
