#include <zip.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/runtime/Literals.h"
#include "tools/AdminRun.h"

namespace akarix::admin {
namespace {

/// Changes words in a part of a workbook.
void Change(const QString& path, const char* part, const QByteArray& from, const QByteArray& to) {
    zip_t* archive = zip_open(path.toUtf8().constData(), 0, nullptr);
    ASSERT_NE(archive, nullptr);
    const auto index = static_cast<zip_uint64_t>(zip_name_locate(archive, part, 0));
    zip_stat_t entry;
    ASSERT_EQ(zip_stat_index(archive, index, 0, &entry), 0);
    QByteArray text(static_cast<qsizetype>(entry.size), '\0');
    zip_file_t* file = zip_fopen_index(archive, index, 0);
    ASSERT_EQ(zip_fread(file, text.data(), entry.size), static_cast<zip_int64_t>(entry.size));
    zip_fclose(file);
    ASSERT_TRUE(text.contains(from)) << from.constData();
    text.replace(from, to);
    zip_file_replace(archive, index,
                     zip_source_buffer(archive, text.constData(), static_cast<zip_uint64_t>(text.size()), 0),
                     0);
    ASSERT_EQ(zip_close(archive), 0);
}

const QString kPrt = QStringLiteral(AKARIX_SOURCE_DIR "/Prt/");

TEST(Template, DeliveredOnesAreSound) {
    const QStringList names = QDir(kPrt).entryList({u"*.xlsx"_s});
    ASSERT_EQ(names.size(), 7);
    const Outcome outcome = RunAdmin(u"template "_s + kPrt + names.join(u' ' + kPrt));
    EXPECT_EQ(outcome.code, 0) << outcome.said;
}

TEST(Template, EachWayToSpoilOneIsTold) {
    constexpr const char *sheet = "xl/worksheets/sheet1.xml", *book = "xl/workbook.xml";
    const struct {
        const char* report;
        const char* part;
        const char *from, *to;
        int code;
        const char* said;
    } cases[] = {
        {"請求一覧表", book, "\"Sheet1\"", "\"表\"", 1, "シート 'Sheet1' がありません"},
        {"請求一覧表", book, "$K$63", "$J$63", 1, "セル K5 など 57 か所: 印刷の範囲の外"},
        {"請求一覧表", sheet, "<mergeCell ", "<mergeCell ref=\"B10:C10\"/><mergeCell ", 1,
         "セル C10: ほかのセル"},
        {"請求一覧表", sheet, "min=\"4\"", "hidden=\"1\" min=\"4\"", 1, "セル D5 など 57 か所: 隠れた"},
        {"請求一覧表", sheet, "<row r=\"63\"", "<row hidden=\"1\" r=\"63\"", 1,
         "セル G63 など 5 か所: 隠れた"},
        {"請求一覧表", sheet, "width=\"9\"", "width=\"1\"", 1, "セル K63: 幅が足りません"},
        {"請求一覧表", sheet, "ht=\"11.75\"", "ht=\"4\"", 1, "セル B5 など 57 か所: 行が低く"},
        {"請求一覧表", sheet, "hidden=\"1\" customWidth", "customWidth", 1, "幅 0 の列"},
        {"取引先一覧", sheet, "&amp;P", "&amp;N", 1, "総ページ数"},
        {"取引先一覧", sheet, "fitToPage=\"1\"", "", 1, "2 枚に分かれます"},
        {"請求一覧表", sheet, "</worksheet>", "<drawing/></worksheet>", 1, "図・図形"},
        {"請求一覧表", sheet, "</worksheet>", "", 2, "壊れています"},
        {"請求書", book, "$AX$35", "$Z$35", 0, "正常"},  // without the copy at the right
        {"請求書", book, "$AX$35", "$U$35", 1, "セル V23 など 8 か所: 印刷の範囲の外"},
    };
    for (const auto& c : cases) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QString(c.report) + ".xlsx");
        ASSERT_TRUE(QFile::copy(kPrt + c.report + ".xlsx", path));
        Change(path, c.part, c.from, c.to);
        const Outcome outcome = RunAdmin("template " + path);
        EXPECT_EQ(outcome.code, c.code) << c.said;
        EXPECT_NE(outcome.said.find(c.said), std::string::npos) << c.said << " in " << outcome.said;
    }
    EXPECT_EQ(RunAdmin("template 知らない.xlsx").code, 2);
    EXPECT_EQ(RunAdmin("template 無い/請求書.xlsx").code, 2);
    EXPECT_EQ(RunAdmin("template").code, 2);
}

}  // namespace
}  // namespace akarix::admin
