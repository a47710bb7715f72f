#include "admin/Debit.h"

#include <QFile>
#include <algorithm>

#include "admin/DebitCheck.h"
#include "admin/DebitLayout.h"
#include "admin/Terminal.h"
#include "platform/runtime/CodePage932.h"

namespace akarix::admin {

namespace {

enum DebitExit { Clean = 0, Departs = 1, Unreadable = 2 };

const char* const helpText =
    "使い方: akarix-admin debit ファイル\n\n"
    "口座振替の依頼ファイルか結果ファイルを項目ごとに表示し、120 文字の様式と違うところを挙げます。様式は\n"
    "ヘッダーの種別で決まります: 91 は公開されている銀行のもの、21 は郵便局のもの（再振替日があり、結果の\n"
    "欄は空白）。Akarix が書いたファイルは様式どおりです。郵便局の支店番号が 3 けた以下の得意先は、\n"
    "レコードが 2 行に割れるので挙げます。ファイルは変えません。\n\n"
    "終了コード: 0 様式どおり、1 違うところがある、2 読めない\n";

/// Columns on a terminal: a full-width character takes two.
QString padded(const QString& text, int width, bool toTheRight) {
    const QString fill(std::max(0, width - ByteLength932(text)), u' ');
    return toTheRight ? fill + text : text + fill;
}

QString trimmedEnd(QString line) {
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

QString valueOf(const DebitField& field, const QByteArray& record) {
    const QString text = FromCodePage932(field.of(record)).trimmed();
    if (field.holds != DebitField::Holds::Number) return text;
    bool isNumber = false;
    const qulonglong number = text.toULongLong(&isNumber);
    return isNumber ? QString::number(number) : text;
}

/// A header, trailer or odd record: a line a field.
QString listed(qsizetype number, const QByteArray& record, DebitForm form) {
    const std::span<const DebitField> layout = DebitLayout(form, record.isEmpty() ? '\0' : record[0]);
    QString text = QStringLiteral("%1: %2\n")
                       .arg(number)
                       .arg(layout.empty() ? FromCodePage932(record) : DebitKindName(record[0]));
    for (const DebitField& field : layout.subspan(layout.empty() ? 0 : 1)) {
        if (field.holds == DebitField::Holds::Filler) continue;
        constexpr int kNameWidth = 14;
        text += trimmedEnd(QStringLiteral("    %1 %2  %3")
                               .arg(field.place, 3)
                               .arg(padded(QString::fromUtf16(field.name), kNameWidth, false),
                                    valueOf(field, record))) +
                u'\n';
    }
    return text;
}

struct Column {
    QString head;
    bool toTheRight = false;
    QStringList cells;

    int width() const {
        int widest = ByteLength932(head);
        for (const QString& cell : cells)
            widest = std::max(widest, ByteLength932(cell));
        return widest;
    }
};

using Records = std::span<const QByteArray>;

/// A stretch of data records: a line a record, without the columns that are blank in all of them.
std::vector<Column> columnsOf(qsizetype first, Records records, const DebitReport& report) {
    std::vector<Column> columns{{QStringLiteral("番号"), true, {}}};
    for (std::size_t i = 0; i < records.size(); ++i) {
        columns[0].cells += QString::number(first + static_cast<qsizetype>(i));
    }
    for (const DebitField& field : DebitLayout(report.form, '2').subspan(1)) {
        Column column{QString::fromUtf16(field.name), field.holds == DebitField::Holds::Number, {}};
        for (const QByteArray& record : records) {
            QString cell = valueOf(field, record);
            if (report.isResult && field.place == kResultPlace && !cell.isEmpty())
                cell += u' ' + DebitResultName(cell[0].toLatin1());
            column.cells += cell;
        }
        const bool blank = std::all_of(column.cells.begin(), column.cells.end(),
                                       [](const QString& cell) { return cell.isEmpty(); });
        if (!blank) columns.push_back(std::move(column));
    }
    return columns;
}

QString table(qsizetype first, Records records, const DebitReport& report) {
    const std::vector<Column> columns = columnsOf(first, records, report);
    QStringList lines(static_cast<qsizetype>(records.size()) + 1);
    for (const Column& column : columns) {
        const int width = column.width();
        lines[0] += padded(column.head, width, column.toTheRight) + QStringLiteral("  ");
        for (qsizetype i = 0; i < column.cells.size(); ++i) {
            lines[i + 1] += padded(column.cells[i], width, column.toTheRight) + QStringLiteral("  ");
        }
    }
    QString text;
    for (const QString& line : lines)
        text += trimmedEnd(line) + u'\n';
    return text;
}

QString allRecords(const DebitReport& report) {
    const std::vector<QByteArray>& records = report.records;
    QString text;
    for (std::size_t i = 0; i < records.size();) {
        const auto isData = [](const QByteArray& record) { return record.startsWith('2'); };
        const auto from = records.begin() + static_cast<std::ptrdiff_t>(i);
        const auto to = std::find_if_not(from, records.end(), isData);
        const auto number = static_cast<qsizetype>(i) + 1;
        text += to == from ? listed(number, *from, report.form) : table(number, Records(from, to), report);
        i += std::max<std::size_t>(1, static_cast<std::size_t>(to - from));
    }
    return text;
}

QString summary(const DebitReport& report) {
    const auto line = [](const QString& name, const DebitTally& tally) {
        return QStringLiteral("%1: %2件 %3円\n").arg(name).arg(tally.count).arg(tally.amount);
    };
    const QString whose = report.form == DebitForm::Bank ? QString() : QStringLiteral("郵便局の");
    QString text =
        line(whose + (report.isResult ? QStringLiteral("結果ファイル") : QStringLiteral("依頼ファイル")),
             report.all);
    for (std::size_t code = 0; report.isResult && code < report.byResult.size(); ++code) {
        const DebitTally& tally = report.byResult[code];
        const char digit = static_cast<char>('0' + code);
        if (tally.count > 0)
            text += line(QStringLiteral("  %1 %2").arg(digit).arg(DebitResultName(digit)), tally);
    }
    for (const DebitDeparture& departure : report.departures) {
        const QString where = departure.record > 0 ? QStringLiteral("%1: ").arg(departure.record) : QString();
        text += QStringLiteral("相違  ") + where + departure.text + u'\n';
    }
    return text + (report.departures.empty()
                       ? QStringLiteral("様式どおりです。\n")
                       : QStringLiteral("様式と違うところ: %1\n").arg(report.departures.size()));
}

int unreadable(const QString& path, const QString& reason) {
    tellError(QStringLiteral("%1: %2\n").arg(path, reason));
    return Unreadable;
}

int showDebit(const QStringList& arguments) {
    if (arguments.size() != 1 || arguments.first().startsWith(u'-')) {
        tellWrongUse(QStringLiteral("debit"));
        return WrongUse;
    }
    const QString& path = arguments.first();
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return unreadable(path, QStringLiteral("ファイルが見つからないか、開けません。"));
    const std::vector<QByteArray> records = SplitDebitRecords(file.readAll());
    if (records.empty()) return unreadable(path, QStringLiteral("空のファイルです。"));
    if (records.front().startsWith('\xf1'))
        return unreadable(path, QStringLiteral("EBCDIC のファイルです。"));
    const DebitReport report = CheckDebitFile(records);
    tell(allRecords(report) + u'\n' + summary(report));
    return report.departures.empty() ? Clean : Departs;
}

}  // namespace

Command debitCommand() {
    return {QStringLiteral("debit"), QStringLiteral("口座振替のファイルを表示し、様式と比べる"),
            QString::fromUtf8(helpText), showDebit};
}

}  // namespace akarix::admin
