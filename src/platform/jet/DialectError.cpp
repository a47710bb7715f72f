#include "platform/jet/DialectError.h"

#include <algorithm>

namespace akarix {
namespace {

constexpr qsizetype kShown = 60;  // characters of the statement an operator is shown

QString excerpt(QStringView sql, qsizetype position) {
    const qsizetype from = std::clamp<qsizetype>(position - kShown / 2, 0, sql.size());
    QString shown = sql.mid(from, kShown).toString().simplified();
    if (from > 0) shown.prepend(QStringLiteral("..."));
    if (from + kShown < sql.size()) shown.append(QStringLiteral("..."));
    return shown;
}

}  // namespace

RuntimeError syntaxError(QStringView sql, const QString& what, qsizetype position) {
    return RuntimeError(3075, QStringLiteral("クエリ式 '%1' の構文エラー: %2 (%3 文字目)")
                                  .arg(excerpt(sql, position), what)
                                  .arg(position + 1));
}

RuntimeError unknownName(const QString& name, qsizetype position) {
    return RuntimeError(3061,
                        QStringLiteral("パラメータが少なすぎます。1 を指定してください。'%1' (%2 文字目)")
                            .arg(name)
                            .arg(position + 1));
}

RuntimeError ambiguousName(const QString& name, qsizetype position) {
    return RuntimeError(
        3079, QStringLiteral(
                  "指定されたフィールド '%1' は、FROM 句にある複数のテーブルを参照しています。(%2 文字目)")
                  .arg(name)
                  .arg(position + 1));
}

RuntimeError unknownTable(const QString& name) {
    return RuntimeError(3078,
                        QStringLiteral("入力テーブルまたはクエリ '%1' が見つかりませんでした。").arg(name));
}

RuntimeError unknownFunction(const QString& name, qsizetype position) {
    return RuntimeError(
        3085, QStringLiteral("式に未定義関数 '%1' があります。(%2 文字目)").arg(name).arg(position + 1));
}

RuntimeError kindsDiffer(qsizetype position) {
    return RuntimeError(3464,
                        QStringLiteral("抽出条件でデータ型が一致しません。(%1 文字目)").arg(position + 1));
}

RuntimeError outsideAggregate(const QString& expression) {
    return RuntimeError(
        3122,
        QStringLiteral("集計関数の一部として指定された式 '%1' を含んでいないクエリを実行しようとしました。")
            .arg(expression));
}

RuntimeError tooComplex() {
    return RuntimeError(3360, QStringLiteral("クエリが複雑すぎます。"));
}

RuntimeError dialectError(int number, const QString& text) {
    return RuntimeError(number, text);
}

}  // namespace akarix
