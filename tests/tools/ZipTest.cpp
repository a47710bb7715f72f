#include <gmock/gmock.h>
#include <zip.h>

#include "admin/PostalPlace.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "store/Lookup.h"
#include "support/ScratchStore.h"
#include "tools/AdminRun.h"

namespace akarix::admin {
namespace {

using testing::HasSubstr;

QString Line(const char* code, const char* city, const char* town) {
    return u"13101,\"100  \",\"%1\",\"ﾄｳｷﾖｳﾄ\",\"ﾁﾖﾀﾞｸ\",\"ﾁﾖﾀﾞ\",\"緑県\",\"%2\",\"%3\",0,0,0,0,0,0\r\n"_s
        .arg(QString::fromUtf8(code), QString::fromUtf8(city), QString::fromUtf8(town));
}

TEST(PostalPlaces, LoseWhatIsNoAddress) {
    struct {
        const char* city;  // "-" where the list does not part it from the town
        const char* town;
        const char* address;
    } const cases[] = {
        {"千代田区", "千代田", "千代田区千代田"},
        {"千代田区", "以下に掲載がない場合", "千代田区"},
        {"利島村", "利島村一円", "利島村"},
        {"多賀町", "一円", "多賀町一円"},
        {"琴平町", "琴平町の次に４２７番地以降がくる場合（川西）", "琴平町"},
        {"中村区", "名駅ツインズ（高層棟）（１２階）", "中村区名駅ツインズ１２階"},
        {"宮古市", "川井（第９地割～第１１地割、", "宮古市川井"},
        {"西和賀町", "上野々３９地割", "西和賀町上野々３９地割"},
        {"土庄町", "甲、乙（大木戸）", "土庄町"},
        {"-", "南佐久郡北相木村北相木村一円", "南佐久郡北相木村"},
        {"-", "小豆郡土庄町甲、乙", "小豆郡土庄町"},
        {"-", "和賀郡西和賀町穴明２２地割、穴明２３地割", "和賀郡西和賀町穴明"},
    };
    for (const auto& [city, town, address] : cases) {
        const bool isParted = city[0] != '-';
        const PostalPlace place =
            AsAddress({{}, isParted ? QString::fromUtf8(city) : QString(), QString::fromUtf8(town)});
        EXPECT_EQ(place.address().toStdString(), address) << town;
    }
}

TEST(Zip, TheOperatorsTableReachesTheScreens) {
    const ScratchStore store(false);
    WriteFile(
        u"ken.csv"_s,
        ToCodePage932(Line("0010000", "緑川市", "以下に掲載がない場合") + Line("0010001", "緑川市", "下町") +
                      Line("0010001", "緑川市", "下町屋") + Line("0010002", "緑川市", "山手（１～３丁目、") +
                      Line("0010002", "緑川市", "５丁目）") + Line("0010003", "緑川市", "髙木町①") +
                      Line("0010003", "赤川村", "大口")));
    const Outcome imported = RunAdmin(u"zip ken.csv"_s);
    EXPECT_EQ(imported.code, Done) << imported.said;
    OpenDb([](const QString&, const QString&) {});
    EXPECT_EQ(AddressOfZip(u"001-0000"_s), u"緑県緑川市"_s);
    EXPECT_EQ(AddressOfZip(u"0010001"_s), u"緑県緑川市"_s);
    EXPECT_EQ(AddressOfZip(u"0010002"_s), u"緑県緑川市山手"_s);
    EXPECT_EQ(AddressOfZip(u"0010003"_s), u"緑県"_s);
}

QByteArray Zipped(const QByteArray& bytes) {
    const QString path = u"made.zip"_s;
    int error = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    zip_source_t* source =
        zip_source_buffer(archive, bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0);
    EXPECT_GE(zip_file_add(archive, "KEN_ALL.CSV", source, 0), 0);
    EXPECT_EQ(zip_close(archive), 0);
    return ContentsOf(path);
}

TEST(Zip, EveryFormIsReadAndALaterOneReplacesTheEarlier) {
    const ScratchStore store(false);
    struct {
        QByteArray bytes;
        const char* rows;  // of Zip7; nothing: refused, what was there stays
    } const cases[] = {
        {Line("1000001", "緑川市", "本町").toUtf8(), "1000001|緑県緑川市本町"},
        {Zipped(ToCodePage932(Line("0000002", "緑川市", "髙木"))), "2|緑県緑川市髙木"},
        {QByteArray(R"({"1000003":{"緑県":["緑川市海岸（１丁目）","緑川市海岸（２丁目）"]},)"
                    R"("1000004":{"緑県":["緑川市東"],"赤県":["赤川村西"]}})"),
         "1000003|緑県緑川市海岸"},
        {Line("1000001", "緑川市", "本町").toUtf8() + "1,2,3\r\n", nullptr},
        {Line("10000", "緑川市", "本町").toUtf8(), nullptr},
        {R"({"1000003":{)", nullptr},
        {Zipped("PK"), nullptr},
        {"", nullptr},
    };
    std::string before;
    for (const auto& [bytes, rows] : cases) {
        WriteFile(u"list"_s, bytes);
        EXPECT_EQ(RunAdmin(u"zip list"_s).code, rows != nullptr ? Done : Failed) << bytes.constData();
        OpenDb([](const QString&, const QString&) {});
        const std::string now = ScratchStore::rows(u"SELECT Code,Addr FROM Zip7"_s).join(u'\n').toStdString();
        EXPECT_EQ(now, rows != nullptr ? rows : before);
        before = now;
        CloseDb();
    }
    WriteFile(u"list"_s, Line("1000001", "緑川市", "本町").toUtf8());
    const Holder program(DatabaseName());
    EXPECT_THAT(RunAdmin(u"zip list"_s).said, HasSubstr("使用中です"));
}

}  // namespace
}  // namespace akarix::admin
