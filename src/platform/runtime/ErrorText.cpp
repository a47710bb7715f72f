#include <algorithm>
#include <array>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

struct Entry {
    int number;
    const char16_t* text;
};

// In the order of the numbers: ErrorText searches by halves.
constexpr std::array kTexts{
    Entry{3, u"Return に対応する GoSub がありません。"},
    Entry{5, u"プロシージャの呼び出し、または引数が不正です。"},
    Entry{6, u"オーバーフローしました。"},
    Entry{7, u"メモリが不足しています。"},
    Entry{9, u"インデックスが有効範囲にありません。"},
    Entry{10, u"この配列は固定されているか、または一時的にロックされています。"},
    Entry{11, u"0 で除算しました。"},
    Entry{13, u"型が一致しません。"},
    Entry{14, u"文字列領域が不足しています。"},
    Entry{16, u"式が複雑すぎます。"},
    Entry{17, u"要求された操作は実行できません。"},
    Entry{18, u"ユーザーによる割り込みが発生しました。"},
    Entry{20, u"エラーが発生していないときに Resume を実行することはできません。"},
    Entry{28, u"スタック領域が不足しています。"},
    Entry{35, u"プロシージャが定義されていません。"},
    Entry{48, u"ライブラリの読み込み時にエラーが発生しました。"},
    Entry{51, u"内部エラーが発生しました。"},
    Entry{52, u"ファイル名または番号が不正です。"},
    Entry{53, u"ファイルが見つかりません。"},
    Entry{54, u"ファイル モードが不正です。"},
    Entry{55, u"ファイルは既に開かれています。"},
    Entry{57, u"デバイス入出力エラーが発生しました。"},
    Entry{58, u"既に同名のファイルが存在しています。"},
    Entry{59, u"レコード長が一致しません。"},
    Entry{61, u"ディスクの空き容量が不足しています。"},
    Entry{62, u"ファイルの終わりを越えて入力しようとしました。"},
    Entry{63, u"レコード番号が不正です。"},
    Entry{67, u"ファイルが多すぎます。"},
    Entry{68, u"デバイスが準備されていません。"},
    Entry{70, u"書き込みできません。"},
    Entry{71, u"ディスクが準備されていません。"},
    Entry{74, u"ディスク名は変更できません。"},
    Entry{75, u"パス名が無効です。"},
    Entry{76, u"パスが見つかりません。"},
    Entry{91, u"オブジェクト変数または With ブロック変数が設定されていません。"},
    Entry{92, u"For ループが初期化されていません。"},
    Entry{93, u"パターン文字列が不正です。"},
    Entry{94, u"Null の使い方が不正です。"},
    Entry{321, u"ファイル形式が不正です。"},
    Entry{340, u"コントロール配列の要素が存在しません。"},
    Entry{380, u"プロパティの値が不正です。"},
    Entry{381, u"プロパティ配列のインデックスが不正です。"},
    Entry{424, u"オブジェクトが必要です。"},
    Entry{429, u"オブジェクトを作成できません。"},
    Entry{438, u"オブジェクトは、このプロパティまたはメソッドをサポートしていません。"},
    Entry{482, u"プリンタ エラーが発生しました。"},
    Entry{1004, u"アプリケーション定義またはオブジェクト定義のエラーです。"},
    Entry{3020, u"AddNew または Edit を実行せずに、Update または CancelUpdate を実行しました。"},
    Entry{3021, u"カレント レコードがありません。"},
    Entry{3022,
          u"インデックス、主キー、またはリレーションシップで値が重複しているため、変更できませんでした。"},
    Entry{3024, u"データベース ファイルが見つかりませんでした。"},
    Entry{3031, u"パスワードが正しくありません。"},
    Entry{3043, u"ディスクまたはネットワークのエラーです。"},
    Entry{3051,
          u"ファイルを開くことができません。ほかのユーザーが排他的に開いているか、読み取りの許可がありません"
          u"。"},
    Entry{3061, u"パラメータが少なすぎます。"},
    Entry{3075, u"クエリ式の構文エラーです。"},
    Entry{3078, u"テーブルまたはクエリが見つかりませんでした。名前が正しいことを確認してください。"},
    Entry{3163, u"フィールドが小さすぎるため、データを追加できませんでした。データを短くしてください。"},
    Entry{3200, u"関連するレコードがほかのテーブルにあるため、レコードの削除や変更を行うことはできません。"},
    Entry{3204, u"データベースは既に存在します。"},
    Entry{3265, u"この名前に対応する項目が、コレクションの中に見つかりません。"},
    Entry{3314, u"必須のフィールドに Null 値は指定できません。値を入力してください。"},
    Entry{3315, u"フィールドに長さ 0 の文字列は指定できません。"},
    Entry{3343, u"データベースの形式を認識できません。ファイルが壊れている可能性があります。"},
    Entry{3346, u"クエリの値の数と対象フィールドの数が一致しません。"},
    Entry{3356, u"データベースはほかのユーザーが排他的に開いています。"},
    Entry{3420, u"オブジェクトが無効か、または設定されていません。"},
    Entry{3421, u"データ型の変換エラーです。"},
    Entry{3464, u"抽出条件でデータ型が一致しません。"},
    Entry{32755, u"[キャンセル] が選択されました。"},
};

static_assert(std::is_sorted(kTexts.begin(), kTexts.end(),
                             [](const Entry& a, const Entry& b) { return a.number < b.number; }));

}  // namespace

QString ErrorText(int number) {
    const auto* found = std::lower_bound(kTexts.begin(), kTexts.end(), number,
                                         [](const Entry& e, int n) { return e.number < n; });
    if (found != kTexts.end() && found->number == number) return QString::fromUtf16(found->text);
    return QStringLiteral("アプリケーション定義またはオブジェクト定義のエラーです。");
}

}  // namespace akarix
