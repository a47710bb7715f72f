#include "month/Summary.h"

#include <algorithm>
#include <set>

#include "ledger/Rows.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Format.h"

namespace akarix::month {

namespace {

/// How many columns of a terminal a text takes; kana and kanji take two.
int columnsOf(const QString& text) {
    int columns = 0;
    for (const QChar letter : text)
        columns += letter.unicode() > 0xff ? 2 : 1;
    return columns;
}

QString line(const QString& label, const QString& value, const QString& unit) {
    constexpr int labelColumns = 20;
    constexpr int valueColumns = 16;
    const QString gap(std::max(0, labelColumns - columnsOf(label)), u' ');
    return label + gap + value.rightJustified(valueColumns) + u' ' + unit + u'\n';
}

QString amount(std::int64_t scaled, const QString& mask) {
    return Format(Currency::FromScaled(scaled), mask);
}

std::int64_t countDocuments(Database& db, const QString& table, const QString& ofMonth) {
    std::set<std::int64_t> numbers;
    for (const auto& row : readNumbers(db, QStringLiteral("SELECT Dno FROM ") + table + ofMonth))
        numbers.insert(row[0]);
    return static_cast<std::int64_t>(numbers.size());
}

}  // namespace

Figures readFigures(Database& db, int year, int month) {
    const QString ofMonth = QStringLiteral(" WHERE Nendo=%1 AND Getudo=%2").arg(year).arg(month);
    Figures figures;
    figures.customers = readNumbers(db, QStringLiteral("SELECT COUNT(*) FROM Deal WHERE Code>0"))[0][0];
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT KonkaiMeter,Suu,Gaku FROM Dgd") + ofMonth)) {
        const bool wasRead = row[0] != 0 || row[1] != 0 || row[2] != 0;
        figures.readings += wasRead ? 1 : 0;
        figures.usage += row[1];
    }
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku FROM TtoD") + ofMonth)) {
        figures.before += row[0];
        figures.gas += row[1];
        figures.sales += row[2];
        figures.billed += row[3];
        figures.paid += row[4];
        figures.after += row[0] + row[1] + row[2] - row[4];
    }
    figures.slips = countDocuments(db, QStringLiteral("Dud"), ofMonth);
    figures.payments = countDocuments(db, QStringLiteral("Dny"), ofMonth);
    return figures;
}

QString summaryText(int year, int month, const Figures& figures, const StepTimes& times) {
    const QString whole = QStringLiteral("#,##0");
    const QString tenths = QStringLiteral("#,##0.0");
    const QString yen = QStringLiteral("円");
    QString text = QStringLiteral("%1年%2月分\n\n").arg(year).arg(month);
    const auto count = [](std::int64_t value) { return Format(Currency(value), QStringLiteral("#,##0")); };
    text += line(QStringLiteral("得意先"), count(figures.customers), QStringLiteral("件"));
    text += line(QStringLiteral("検針"), count(figures.readings), QStringLiteral("件"));
    text += line(QStringLiteral("使用量"), amount(figures.usage, tenths), QStringLiteral("m3"));
    text += line(QStringLiteral("ガス料金"), amount(figures.gas, whole), yen);
    text += line(QStringLiteral("売上伝票"), count(figures.slips), QStringLiteral("枚"));
    text += line(QStringLiteral("物販"), amount(figures.sales, whole), yen);
    text += line(QStringLiteral("当月請求"), amount(figures.billed, whole), yen);
    text += line(QStringLiteral("前月残"), amount(figures.before, whole), yen);
    text += line(QStringLiteral("入金伝票"), count(figures.payments), QStringLiteral("枚"));
    text += line(QStringLiteral("入金"), amount(figures.paid, whole), yen);
    text += line(QStringLiteral("次月繰越"), amount(figures.after, whole), yen);
    text += line(QStringLiteral("請求書"), count(figures.invoicePages), QStringLiteral("頁"));
    const QString records = QStringLiteral("件");
    text += line(QStringLiteral("口座振替の依頼"), count(figures.debit.asked), records);
    text += line(QStringLiteral("依頼額"), count(figures.debit.askedYen), yen);
    text += line(QStringLiteral("口座振替の入金"), count(figures.debit.debited), records);
    text += line(QStringLiteral("振替入金額"), count(figures.debit.debitedYen), yen);
    text += u'\n';
    for (const auto& [label, met] : figures.hardCases)
        text += line(label, count(met), records);
    text += u'\n';
    for (const StepTimes::Step& step : times.steps()) {
        text += line(step.name, QString::number(step.seconds, 'f', 2), QStringLiteral("秒"));
    }
    return text;
}

}  // namespace akarix::month
