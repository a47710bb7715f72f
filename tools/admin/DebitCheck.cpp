#include "admin/DebitCheck.h"

#include <QByteArrayList>
#include <algorithm>
#include <set>
#include <utility>

#include "admin/DebitWords.h"
#include "platform/runtime/Literals.h"

namespace akarix::admin {

namespace {

char KindOf(const QByteArray& record) {
    return record.isEmpty() ? '\0' : record[0];
}

class Check {
 public:
    explicit Check(const std::vector<QByteArray>& lines) {
        report_.form = DebitFormOf(lines.front());
        putTogether(lines);
    }

    DebitReport run() {
        for (const QByteArray& record : records_) {
            ++number_;
            checkWhole(record);
            checkLength(record);
            checkOrder(KindOf(record));
            checkFields(record);
            if (KindOf(record) == '2') count(record);
            if (KindOf(record) == '8') trailer_ = number_;
        }
        number_ = 0;
        if (KindOf(records_.back()) != '9') depart(u"エンドレコードで終わっていない"_s);
        // A bank's request has 0 for every result, so where all went well the trailer alone tells; the post
        // office's has nothing.
        const auto answers = report_.byResult.begin() + (report_.form == DebitForm::Bank ? 1 : 0);
        const bool isAnswered = std::any_of(answers, report_.byResult.end(),
                                            [](const DebitTally& tally) { return tally.count > 0; });
        report_.isResult = isAnswered || total(20).count + total(38).count > 0;
        if (report_.form == DebitForm::PostOffice && report_.isResult) countBlanks();
        if (trailer_ > 0) checkTotals();
        return std::move(report_);
    }

 private:
    /// Behind an office number that is too short a record goes on in a line of its own.
    void putTogether(const std::vector<QByteArray>& lines) {
        constexpr qsizetype kBefore = 20;  // the office number follows, one digit too long
        constexpr qsizetype kFront = 24;
        const QByteArray filler(20, ' ');
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const bool isBroken = report_.form == DebitForm::PostOffice && KindOf(lines[i]) == '2' &&
                                  lines[i].size() == kFront && i + 1 < lines.size() &&
                                  lines[i + 1].startsWith(filler);
            if (!isBroken) {
                records_.push_back(lines[i]);
                continue;
            }
            records_.push_back(lines[i].left(kBefore) + lines[i].mid(kBefore + 1) + lines[i + 1]);
            broken_.insert(static_cast<qsizetype>(records_.size()));
            ++i;
        }
    }

    void checkWhole(const QByteArray& record) {
        if (!broken_.contains(number_)) return;
        depart(
            u"支店番号が 3 けた以下（%1）なので、レコードが 2 行に割れている。得意先 %2 の支店を 5 "
            "けたにして作り直す"_s.arg(QString::fromLatin1(record.mid(20, 3)))
                .arg(kDebitCustomer.of(record).toLongLong()));
    }

    void depart(const QString& text) { report_.departures.push_back({number_, text}); }

    void checkLength(const QByteArray& record) {
        if (record.size() == kDebitRecord) return;
        depart(u"長さが %1 バイト（%2 バイトのはず）"_s.arg(record.size()).arg(kDebitRecord));
    }

    /// 1, then 2 as often as there are accounts, then 8 and 9, once each.
    void checkOrder(char kind) {
        const char before = number_ == 1 ? '\0' : KindOf(records_[static_cast<std::size_t>(number_ - 2)]);
        const QByteArray step{QByteArray(1, before) + kind};
        if (DebitLayout(report_.form, kind).empty())
            depart(u"データ区分が 1、2、8、9 のどれでもない"_s);
        else if (number_ == 1 ? kind != '1' : !QByteArrayList{"12", "18", "22", "28", "89"}.contains(step))
            depart(u"%1レコードの順番ではない"_s.arg(DebitKindName(kind)));
    }

    void checkFields(const QByteArray& record) {
        for (const DebitField& field : DebitLayout(report_.form, KindOf(record))) {
            const QByteArray bytes = field.of(record);
            if (bytes.size() < field.width) break;  // told by the length
            const QString reason = FieldDeparture(field, bytes);
            if (reason.isEmpty()) continue;
            const QString to =
                field.width > 1 ? u'-' + QString::number(field.place + field.width - 1) : QString();
            depart(
                u"%1（%2%3桁目） %4"_s.arg(QString::fromUtf16(field.name)).arg(field.place).arg(to, reason));
        }
    }

    void count(const QByteArray& record) {
        const qint64 amount = kDebitAmount.of(record).toLongLong();
        const char result = record.mid(kDebitResultPlace - 1, 1).append(' ')[0];
        const auto add = [amount](DebitTally& tally) {
            ++tally.count;
            tally.amount += amount;
        };
        add(report_.all);
        if (result >= '0' && result <= '9') add(report_.byResult[static_cast<std::size_t>(result - '0')]);
    }

    /// In an answer of the post office nothing is as good as a 0.
    void countBlanks() {
        DebitTally blank = report_.all;
        for (const DebitTally& tally : report_.byResult) {
            blank.count -= tally.count;
            blank.amount -= tally.amount;
        }
        report_.byResult[0].count += blank.count;
        report_.byResult[0].amount += blank.amount;
    }

    /// Count and amount in the trailer, at the place of the count.
    DebitTally total(int place) const {
        if (trailer_ == 0) return {};
        const QByteArray& record = records_[static_cast<std::size_t>(trailer_ - 1)];
        return {record.mid(place - 1, 6).toLongLong(), record.mid(place + 5, 12).toLongLong()};
    }

    void checkTotals() {
        number_ = trailer_;
        const auto compare = [this](const QString& name, const DebitTally& written,
                                    const DebitTally& summed) {
            if (written == summed) return;
            depart(u"%1が %2件 %3円、データレコードの合計は %4件 %5円"_s.arg(name)
                       .arg(written.count)
                       .arg(written.amount)
                       .arg(summed.count)
                       .arg(summed.amount));
        };
        const DebitTally& debited = report_.byResult[0];
        compare(u"合計"_s, total(2), report_.all);
        const QByteArray& trailer = records_[static_cast<std::size_t>(trailer_ - 1)];
        const bool isFilled = report_.form == DebitForm::Bank || !trailer.mid(19, 36).trimmed().isEmpty();
        if (!report_.isResult || !isFilled) return;
        compare(u"振替済"_s, total(20), debited);
        compare(u"振替不能"_s, total(38),
                {report_.all.count - debited.count, report_.all.amount - debited.amount});
    }

    DebitReport report_;
    std::vector<QByteArray>& records_ = report_.records;
    std::set<qsizetype> broken_;  ///< numbers of records that were put together
    qsizetype number_ = 0;
    qsizetype trailer_ = 0;
};

}  // namespace

std::vector<QByteArray> SplitDebitRecords(const QByteArray& file) {
    const qsizetype mark = file.indexOf('\x1a');
    const QByteArray bytes = mark < 0 ? file : file.left(mark);
    std::vector<QByteArray> records;
    if (!bytes.contains('\r') && !bytes.contains('\n')) {
        for (qsizetype at = 0; at < bytes.size(); at += kDebitRecord)
            records.push_back(bytes.mid(at, kDebitRecord));
        return records;
    }
    QByteArray lines = bytes;
    lines.replace("\r\n", "\n").replace('\r', '\n');
    if (lines.endsWith('\n')) lines.chop(1);
    for (const QByteArray& line : lines.split('\n'))
        records.push_back(line);
    return records;
}

DebitReport CheckDebitFile(const std::vector<QByteArray>& records) {
    return Check(records).run();
}

}  // namespace akarix::admin
