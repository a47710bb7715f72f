#include "month/Summary.h"

#include <algorithm>
#include <set>

#include "ledger/Rows.h"
#include "month/Desk.h"
#include "month/HardCases.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix::month {

namespace {

QString Line(const QString& label, const QString& value, const QString& unit) {
    constexpr int labelColumns = 20;
    constexpr int valueColumns = 16;
    const QString gap(std::max(0, labelColumns - ByteLength932(label)), u' ');
    return label + gap + value.rightJustified(valueColumns) + u' ' + unit + u'\n';
}

QString Line(const QString& label, std::int64_t value, const QString& unit) {
    return Line(label, Format(Currency(value), u"#,##0"_s), unit);
}

QString Line(const QString& label, Currency amount, const QString& unit) {
    return Line(label, Format(amount, unit == u"円" ? u"#,##0"_s : u"#,##0.0"_s), unit);
}

std::int64_t CountDocuments(Database& db, const QString& table, const QString& ofMonth) {
    std::set<std::int64_t> numbers;
    for (const auto& row : ReadNumbers(db, u"SELECT Dno FROM "_s + table + ofMonth))
        numbers.insert(row[0]);
    return static_cast<std::int64_t>(numbers.size());
}

/// The sums of the columns of a question.
std::vector<Currency> SumsOf(const std::vector<std::vector<std::int64_t>>& rows, std::size_t columns) {
    std::vector<Currency> sums(columns);
    for (const auto& row : rows)
        for (std::size_t i = 0; i < columns; ++i)
            sums[i] += Currency::FromScaled(row[i]);
    return sums;
}

}  // namespace

QString SummaryText(Database& db, const Desk& desk, const std::vector<StepTime>& times) {
    const QString ofMonth = u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(desk.options.year).arg(desk.options.month);
    const auto readings = ReadNumbers(db, u"SELECT KonkaiMeter,Suu,Gaku FROM Dgd"_s + ofMonth);
    const auto read = std::count_if(readings.begin(), readings.end(), [](const auto& row) {
        return row[0] != 0 || row[1] != 0 || row[2] != 0;
    });
    const auto ledger =
        SumsOf(ReadNumbers(db, u"SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku FROM TtoD"_s + ofMonth), 5);
    const Currency before = ledger[0], gas = ledger[1], sales = ledger[2], billed = ledger[3],
                   paid = ledger[4];
    const DebitFigures debit = TotalsOf(desk.typed.debits);
    const QString yen = u"円"_s;
    const QString records = u"件"_s;

    QString text = u"%1年%2月分\n\n"_s.arg(desk.options.year).arg(desk.options.month);
    text += Line(u"得意先"_s, ReadNumbers(db, u"SELECT COUNT(*) FROM Deal WHERE Code>0"_s)[0][0], records);
    text += Line(u"検針"_s, read, records);
    text += Line(u"使用量"_s, SumsOf(readings, 3)[1], u"m3"_s);
    text += Line(u"ガス料金"_s, gas, yen);
    text += Line(u"売上伝票"_s, CountDocuments(db, u"Dud"_s, ofMonth), u"枚"_s);
    text += Line(u"物販"_s, sales, yen);
    text += Line(u"当月請求"_s, billed, yen);
    text += Line(u"前月残"_s, before, yen);
    text += Line(u"入金伝票"_s, CountDocuments(db, u"Dny"_s, ofMonth), u"枚"_s);
    text += Line(u"入金"_s, paid, yen);
    text += Line(u"次月繰越"_s, before + gas + sales - paid, yen);
    text += Line(u"請求書"_s, std::int64_t{desk.invoicePages}, u"頁"_s);
    text += Line(u"口座振替の依頼"_s, debit.asked, records);
    text += Line(u"依頼額"_s, debit.askedYen, yen);
    text += Line(u"口座振替の入金"_s, debit.debited, records);
    text += Line(u"振替入金額"_s, debit.debitedYen, yen);
    text += u'\n';
    for (const auto& [label, met] : HardCasesOf(db, desk))
        text += Line(label, met, records);
    text += u'\n';
    for (const auto& [name, seconds] : times)
        text += Line(name, QString::number(seconds, 'f', 2), u"秒"_s);
    return text;
}

}  // namespace akarix::month
