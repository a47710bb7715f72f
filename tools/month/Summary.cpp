#include "month/Summary.h"

#include <algorithm>
#include <set>

#include "ledger/Rows.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

/// How many columns of a terminal a text takes; kana and kanji take two.
int ColumnsOf(const QString& text) {
    int columns = 0;
    for (const QChar letter : text)
        columns += letter.unicode() > 0xff ? 2 : 1;
    return columns;
}

QString Line(const QString& label, const QString& value, const QString& unit) {
    constexpr int labelColumns = 20;
    constexpr int valueColumns = 16;
    const QString gap(std::max(0, labelColumns - ColumnsOf(label)), u' ');
    return label + gap + value.rightJustified(valueColumns) + u' ' + unit + u'\n';
}

QString Amount(std::int64_t scaled, const QString& mask) {
    return Format(Currency::FromScaled(scaled), mask);
}

std::int64_t CountDocuments(Database& db, const QString& table, const QString& ofMonth) {
    std::set<std::int64_t> numbers;
    for (const auto& row : ReadNumbers(db, u"SELECT Dno FROM "_s + table + ofMonth))
        numbers.insert(row[0]);
    return static_cast<std::int64_t>(numbers.size());
}

}  // namespace

Figures ReadFigures(Database& db, int year, int month) {
    const QString ofMonth = u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(year).arg(month);
    Figures figures;
    figures.customers = ReadNumbers(db, u"SELECT COUNT(*) FROM Deal WHERE Code>0"_s)[0][0];
    for (const auto& row : ReadNumbers(db, u"SELECT KonkaiMeter,Suu,Gaku FROM Dgd"_s + ofMonth)) {
        const bool wasRead = row[0] != 0 || row[1] != 0 || row[2] != 0;
        figures.readings += wasRead ? 1 : 0;
        figures.usage += row[1];
    }
    for (const auto& row :
         ReadNumbers(db, u"SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku FROM TtoD"_s + ofMonth)) {
        figures.before += row[0];
        figures.gas += row[1];
        figures.sales += row[2];
        figures.billed += row[3];
        figures.paid += row[4];
        figures.after += row[0] + row[1] + row[2] - row[4];
    }
    figures.slips = CountDocuments(db, u"Dud"_s, ofMonth);
    figures.payments = CountDocuments(db, u"Dny"_s, ofMonth);
    return figures;
}

QString SummaryText(int year, int month, const Figures& figures, const StepTimes& times) {
    const QString whole = u"#,##0"_s;
    const QString tenths = u"#,##0.0"_s;
    const QString yen = u"円"_s;
    QString text = u"%1年%2月分\n\n"_s.arg(year).arg(month);
    const auto count = [](std::int64_t value) { return Format(Currency(value), u"#,##0"_s); };
    text += Line(u"得意先"_s, count(figures.customers), u"件"_s);
    text += Line(u"検針"_s, count(figures.readings), u"件"_s);
    text += Line(u"使用量"_s, Amount(figures.usage, tenths), u"m3"_s);
    text += Line(u"ガス料金"_s, Amount(figures.gas, whole), yen);
    text += Line(u"売上伝票"_s, count(figures.slips), u"枚"_s);
    text += Line(u"物販"_s, Amount(figures.sales, whole), yen);
    text += Line(u"当月請求"_s, Amount(figures.billed, whole), yen);
    text += Line(u"前月残"_s, Amount(figures.before, whole), yen);
    text += Line(u"入金伝票"_s, count(figures.payments), u"枚"_s);
    text += Line(u"入金"_s, Amount(figures.paid, whole), yen);
    text += Line(u"次月繰越"_s, Amount(figures.after, whole), yen);
    text += Line(u"請求書"_s, count(figures.invoicePages), u"頁"_s);
    const QString records = u"件"_s;
    text += Line(u"口座振替の依頼"_s, count(figures.debit.asked), records);
    text += Line(u"依頼額"_s, count(figures.debit.askedYen), yen);
    text += Line(u"口座振替の入金"_s, count(figures.debit.debited), records);
    text += Line(u"振替入金額"_s, count(figures.debit.debitedYen), yen);
    text += u'\n';
    for (const auto& [label, met] : figures.hardCases)
        text += Line(label, count(met), records);
    text += u'\n';
    for (const StepTimes::Step& step : times.steps())
        text += Line(step.name, QString::number(step.seconds, 'f', 2), u"秒"_s);
    return text;
}

}  // namespace akarix::month
