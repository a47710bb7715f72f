#include <QFile>
#include <algorithm>

#include "admin/Columns.h"
#include "admin/Command.h"
#include "admin/DebitCheck.h"
#include "admin/DebitWords.h"
#include "admin/Terminal.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin debit ファイル\n\n"
    "口座振替の依頼ファイルか結果ファイルを項目ごとに表示し、120 文字の様式と違うところを挙げます。様式は\n"
    "ヘッダーの種別で決まります: 91 は公開されている銀行のもの、21 は郵便局のもの（再振替日があり、結果の\n"
    "欄は空白）。Akarix が書いたファイルは様式どおりです。郵便局の支店番号が 3 けた以下の得意先は、\n"
    "レコードが 2 行に割れるので挙げます。ファイルは変えません。\n\n"
    "終了コード: 0 様式どおり、1 違うところがある、2 読めない\n";

/// Columns on a terminal: a full-width character takes two.
QString Padded(const QString& text, int width) {
    return text + QString(std::max(0, width - ByteLength932(text)), u' ');
}

QString TrimmedEnd(QString line) {
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

QString ValueOf(const DebitField& field, const QByteArray& record) {
    const QString text = FromCodePage932(field.of(record)).trimmed();
    if (field.holds != DebitField::Holds::Number) return text;
    bool isNumber = false;
    const qulonglong number = text.toULongLong(&isNumber);
    return isNumber ? QString::number(number) : text;
}

/// A header, trailer or odd record: a line a field.
QString Listed(qsizetype number, const QByteArray& record, DebitForm form) {
    const std::span<const DebitField> layout = DebitLayout(form, record.isEmpty() ? '\0' : record[0]);
    QString text =
        u"%1: %2\n"_s.arg(number).arg(layout.empty() ? FromCodePage932(record) : DebitKindName(record[0]));
    for (const DebitField& field : layout.subspan(layout.empty() ? 0 : 1)) {
        if (field.holds == DebitField::Holds::Filler) continue;
        constexpr int kNameWidth = 14;
        text +=
            TrimmedEnd(u"    %1 %2  %3"_s.arg(field.place, 3)
                           .arg(Padded(QString::fromUtf16(field.name), kNameWidth), ValueOf(field, record))) +
            u'\n';
    }
    return text;
}

using Records = std::span<const QByteArray>;

/// A stretch of data records: a line a record, without the columns that are blank in all of them.
QString Table(qsizetype first, Records records, const DebitReport& report) {
    QStringList heads{u">番号"_s};
    std::vector<QStringList> rows(records.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] += QString::number(first + static_cast<qsizetype>(i));
    for (const DebitField& field : DebitLayout(report.form, '2').subspan(1)) {
        QStringList cells;
        for (const QByteArray& record : records) {
            QString cell = ValueOf(field, record);
            if (report.isResult && field.place == kDebitResultPlace && !cell.isEmpty())
                cell += u' ' + DebitResultName(cell[0].toLatin1());
            cells += cell;
        }
        if (cells.join(QString()).isEmpty()) continue;
        const bool isNumber = field.holds == DebitField::Holds::Number;
        heads += (isNumber ? u">"_s : QString()) + QString::fromUtf16(field.name);
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i] += cells[static_cast<qsizetype>(i)];
    }
    Columns table(heads, {});
    for (const QStringList& row : rows)
        table.add(row);
    return table.text();
}

QString AllRecords(const DebitReport& report) {
    const std::vector<QByteArray>& records = report.records;
    QString text;
    for (std::size_t i = 0; i < records.size();) {
        const auto isData = [](const QByteArray& record) { return record.startsWith('2'); };
        const auto from = records.begin() + static_cast<std::ptrdiff_t>(i);
        const auto to = std::find_if_not(from, records.end(), isData);
        const auto number = static_cast<qsizetype>(i) + 1;
        text += to == from ? Listed(number, *from, report.form) : Table(number, Records(from, to), report);
        i += std::max<std::size_t>(1, static_cast<std::size_t>(to - from));
    }
    return text;
}

QString Summary(const DebitReport& report) {
    const auto line = [](const QString& name, const DebitTally& tally) {
        return u"%1: %2件 %3円\n"_s.arg(name).arg(tally.count).arg(tally.amount);
    };
    const QString whose = report.form == DebitForm::Bank ? QString() : u"郵便局の"_s;
    QString text = line(whose + (report.isResult ? u"結果ファイル"_s : u"依頼ファイル"_s), report.all);
    for (std::size_t code = 0; report.isResult && code < report.byResult.size(); ++code) {
        const DebitTally& tally = report.byResult[code];
        const char digit = static_cast<char>('0' + code);
        if (tally.count > 0) text += line(u"  %1 %2"_s.arg(digit).arg(DebitResultName(digit)), tally);
    }
    for (const DebitDeparture& departure : report.departures) {
        const QString where = departure.record > 0 ? u"%1: "_s.arg(departure.record) : QString();
        text += u"相違  "_s + where + departure.text + u'\n';
    }
    return text + (report.departures.empty() ? u"様式どおりです。\n"_s
                                             : u"様式と違うところ: %1\n"_s.arg(report.departures.size()));
}

int ShowDebit(const QCommandLineParser& given) {
    const QString path = given.positionalArguments().first();
    const auto unreadable = [&path](const QString& reason) {
        return Stop{Unreadable, path + u": "_s + reason};
    };
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw unreadable(u"ファイルが見つからないか、開けません。"_s);
    const std::vector<QByteArray> records = SplitDebitRecords(file.readAll());
    if (records.empty()) throw unreadable(u"空のファイルです。"_s);
    if (records.front().startsWith('\xf1')) throw unreadable(u"EBCDIC のファイルです。"_s);
    const DebitReport report = CheckDebitFile(records);
    Tell(AllRecords(report) + u'\n' + Summary(report));
    return report.departures.empty() ? Clean : Found;
}

}  // namespace

Command DebitCommand() {
    return {u"debit"_s, u"口座振替のファイルを表示し、様式と比べる"_s, kHelpText, {}, {1, 1}, ShowDebit};
}

}  // namespace akarix::admin
