#include "platform/dialect/DialectError.h"

#include <algorithm>

#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr qsizetype kShown = 60;  // characters of the statement an operator is shown

QString Excerpt(QStringView sql, qsizetype position) {
    const qsizetype from = std::clamp<qsizetype>(position - kShown / 2, 0, sql.size());
    QString shown = sql.mid(from, kShown).toString().simplified();
    if (from > 0) shown.prepend(u"..."_s);
    if (from + kShown < sql.size()) shown.append(u"..."_s);
    return shown;
}

}  // namespace

RuntimeError SyntaxError(QStringView sql, const QString& what, qsizetype position) {
    return RuntimeError(
        3075,
        u"クエリ式 '%1' の構文エラー: %2 (%3 文字目)"_s.arg(Excerpt(sql, position), what).arg(position + 1));
}

RuntimeError UnknownName(const QString& name, qsizetype position) {
    return RuntimeError(
        3061,
        u"パラメータが少なすぎます。1 を指定してください。'%1' (%2 文字目)"_s.arg(name).arg(position + 1));
}

RuntimeError AmbiguousName(const QString& name, qsizetype position) {
    return RuntimeError(
        3079,
        u"指定されたフィールド '%1' は、FROM 句にある複数のテーブルを参照しています。(%2 文字目)"_s.arg(name)
            .arg(position + 1));
}

RuntimeError UnknownTable(const QString& name) {
    return RuntimeError(3078, u"入力テーブルまたはクエリ '%1' が見つかりませんでした。"_s.arg(name));
}

RuntimeError UnknownFunction(const QString& name, qsizetype position) {
    return RuntimeError(3085, u"式に未定義関数 '%1' があります。(%2 文字目)"_s.arg(name).arg(position + 1));
}

RuntimeError KindsDiffer(qsizetype position) {
    return RuntimeError(3464, u"抽出条件でデータ型が一致しません。(%1 文字目)"_s.arg(position + 1));
}

RuntimeError OutsideAggregate(const QString& expression) {
    return RuntimeError(
        3122, u"集計関数の一部として指定された式 '%1' を含んでいないクエリを実行しようとしました。"_s.arg(
                  expression));
}

RuntimeError TooComplex() {
    return RuntimeError(3360, u"クエリが複雑すぎます。"_s);
}

RuntimeError TwiceInFrom(const QString& table) {
    return RuntimeError(3012, u"'%1' は FROM 句に既にあります。"_s.arg(table));
}

}  // namespace akarix
