#include "platform/dialect/StoreError.h"

#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

struct Text {
    int number;
    const char16_t* text;
};

constexpr Text kTexts[] = {
    {3010, u"テーブルは既に存在します。"},
    {3022, u"インデックス、主キー、またはリレーションシップで値が重複しているため、変更を行えませんでした。"},
    {3026, u"ディスクの空き容量が不足しています。"},
    {3027, u"更新できません。データベースまたはオブジェクトは読み取り専用です。"},
    {3045, u"ファイルは既に使用されているため、使用できませんでした。"},
    {3049, u"データベースを開けません。修復できないデータベースです。"},
    {3051, u"ファイルを開けません。排他的に開かれているか、アクセスする権限がありません。"},
    {3065, u"選択クエリは実行できません。"},
    {3164, u"フィールドは更新できません。"},
    {3167, u"レコードは削除されています。"},
    {3219, u"操作が正しくありません。"},
    {3259, u"フィールドのデータ型が不正です。"},
    {3260, u"ほかのユーザーがロックしているため、更新できませんでした。"},
    {3371, u"テーブルが見つかりません。"},
    {3380, u"フィールドは既に存在します。"},
    {3383, u"フィールドが見つかりません。"},
    {3409, u"インデックスのフィールドが見つかりません。"},
};

QString TextOf(int number) {
    for (const Text& entry : kTexts)
        if (entry.number == number) return QString::fromUtf16(entry.text);
    return ErrorText(number);
}

}  // namespace

RuntimeError StoreError(int number, const QString& detail, const QString& source) {
    QString text = TextOf(number);
    if (!detail.isEmpty()) text += u" ("_s + detail + u')';
    return RuntimeError(number, text, source);
}

}  // namespace akarix
