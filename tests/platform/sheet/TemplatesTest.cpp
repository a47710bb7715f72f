#include "platform/sheet/SheetPainter.h"
#include "platform/sheet/SheetReader.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

Sheet Delivered(const QString& name) {
    return ReadSheet(QString(AKARIX_SOURCE_DIR "/Prt/%1.xlsx").arg(name), "Sheet1");
}

TEST(Templates, EachIsOnePageOfReadableSize) {
    const std::pair<const char*, CellAddress> extents[] = {
        {"請求一覧表", {63, 11}}, {"取引先一覧", {61, 7}}, {"価格表", {25, 12}}, {"請求書", {35, 50}}};
    for (const auto& [name, extent] : extents) {
        const Sheet sheet = Delivered(name);
        EXPECT_EQ(sheet.extent(), extent) << name;
        const auto pages = LayOutSheet(sheet);
        ASSERT_EQ(pages.size(), 1U) << name;
        EXPECT_GE(pages[0].scale, 0.95) << "smaller letters than the template says would be hard to read";
    }
    EXPECT_EQ(Delivered("請求一覧表").shownText({4, 11}), "請求額");
    EXPECT_TRUE(Delivered("取引先一覧").page.headerText.contains("&P"));
    const PageSetup invoice = Delivered("請求書").page;
    EXPECT_GT(invoice.paperWidth, invoice.paperHeight);
}

TEST(Templates, CellsShowWhatReportsPutIntoThem) {
    Sheet sheet;
    QString opened;
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/templates.txt")) {
        if (opened != cells[0]) sheet = Delivered(opened = cells[0]);
        for (const QString& address : cells[1].split(',')) {
            sheet.setValue(address, cells[2]);
            EXPECT_EQ(sheet.shownText(ParseRange(address).first), cells.value(3)) << line;
            EXPECT_TRUE(opened != "請求書" || sheet.prints(address)) << address.toStdString();
        }
        EXPECT_EQ(LayOutSheet(sheet).size(), 1U) << line;
    }
    EXPECT_FALSE(sheet.prints("E15")) << "covered by the amount";
    EXPECT_FALSE(sheet.prints("AY5"));
}

TEST(Templates, LongNamesAndAmountsShrink) {
    const std::pair<const char*, const char*> cells[] = {
        {"請求一覧表", "C5,C61"}, {"価格表", "L24"}, {"請求書", "A5,D15,M18,D30,P30,V30,AC5,AF15,AX30"}};
    for (const auto& [name, addresses] : cells) {
        const Sheet sheet = Delivered(name);
        for (const QString& address : QString(addresses).split(','))
            EXPECT_TRUE(sheet.styleAt(ParseRange(address).first).shrink) << name << address.toStdString();
    }
}

}  // namespace
}  // namespace akarix
