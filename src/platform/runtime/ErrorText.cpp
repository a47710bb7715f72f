#include <algorithm>
#include <array>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

struct Entry {
    int number;
    const char16_t* text;
};

// In the order of the numbers: ErrorText searches by halves.
constexpr std::array kTexts{
    Entry{5, u"プロシージャの呼び出し、または引数が不正です。"},
    Entry{6, u"オーバーフローしました。"},
    Entry{7, u"メモリが不足しています。"},
    Entry{9, u"インデックスが有効範囲にありません。"},
    Entry{11, u"0 で除算しました。"},
    Entry{13, u"型が一致しません。"},
    Entry{48, u"ライブラリの読み込み時にエラーが発生しました。"},
    Entry{51, u"内部エラーが発生しました。"},
    Entry{52, u"ファイル名または番号が不正です。"},
    Entry{53, u"ファイルが見つかりません。"},
    Entry{54, u"ファイル モードが不正です。"},
    Entry{55, u"ファイルは既に開かれています。"},
    Entry{57, u"デバイス入出力エラーが発生しました。"},
    Entry{61, u"ディスクの空き容量が不足しています。"},
    Entry{62, u"ファイルの終わりを越えて入力しようとしました。"},
    Entry{67, u"ファイルが多すぎます。"},
    Entry{70, u"書き込みできません。"},
    Entry{71, u"ディスクが準備されていません。"},
    Entry{75, u"パス名が無効です。"},
    Entry{76, u"パスが見つかりません。"},
    Entry{91, u"オブジェクト変数または With ブロック変数が設定されていません。"},
    Entry{93, u"パターン文字列が不正です。"},
    Entry{94, u"Null の使い方が不正です。"},
    Entry{340, u"コントロール配列の要素が存在しません。"},
    Entry{380, u"プロパティの値が不正です。"},
    Entry{381, u"プロパティ配列のインデックスが不正です。"},
    Entry{3020, u"AddNew または Edit を実行せずに、Update を実行しました。"},
    Entry{3021, u"カレント レコードがありません。"},
    Entry{3024, u"データベース ファイルが見つかりませんでした。"},
    Entry{3031, u"パスワードが正しくありません。"},
    Entry{3043, u"ディスクまたはネットワークのエラーです。"},
    Entry{3075, u"クエリ式の構文エラーです。"},
    Entry{3163, u"フィールドが小さすぎるため、データを追加できませんでした。データを短くしてください。"},
    Entry{3204, u"データベースは既に存在します。"},
    Entry{3265, u"この名前に対応する項目が、コレクションの中に見つかりません。"},
    Entry{3314, u"必須のフィールドに Null 値は指定できません。値を入力してください。"},
    Entry{3315, u"フィールドに長さ 0 の文字列は指定できません。"},
    Entry{3343, u"データベースの形式を認識できません。ファイルが壊れている可能性があります。"},
    Entry{3356, u"データベースはほかのユーザーが排他的に開いています。"},
    Entry{3420, u"オブジェクトが無効か、または設定されていません。"},
    Entry{3421, u"データ型の変換エラーです。"},
    Entry{32755, u"[キャンセル] が選択されました。"},
};

static_assert(std::is_sorted(kTexts.begin(), kTexts.end(),
                             [](const Entry& a, const Entry& b) { return a.number < b.number; }));

}  // namespace

QString ErrorText(int number) {
    const auto* found = std::lower_bound(kTexts.begin(), kTexts.end(), number,
                                         [](const Entry& e, int n) { return e.number < n; });
    if (found != kTexts.end() && found->number == number) return QString::fromUtf16(found->text);
    return u"アプリケーション定義またはオブジェクト定義のエラーです。"_s;
}

}  // namespace akarix
