#include "month/DebitFile.h"

#include <QFile>
#include <algorithm>

#include "debit/DebitLayout.h"
#include "month/Failure.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

QList<QByteArray> ReadRecords(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + u" が読めません。"_s);
    QList<QByteArray> records = file.readAll().split('\n');
    records.removeLast();  // nothing stands behind the last end of line
    for (QByteArray& record : records) {
        if (!record.endsWith('\r') || record.size() != kDebitRecord + 1)
            throw Failure(path + u" に 120 桁でない行があります。"_s);
        record.chop(1);
    }
    return records;
}

bool IsClaim(const QByteArray& record) {
    return record.startsWith('2');
}

void RequireTrailer(const QList<QByteArray>& records, const DebitFigures& figures, const QString& path) {
    const auto trailer = std::find_if(records.begin(), records.end(),
                                      [](const QByteArray& record) { return record.startsWith('8'); });
    if (trailer == records.end() || kDebitCount.of(*trailer).toLongLong() != figures.asked ||
        kDebitTotal.of(*trailer).toLongLong() != figures.askedYen)
        throw Failure(path + u" の合計が明細と違います。"_s);
}

}  // namespace

DebitFigures TotalsOf(const DebitClaims& claims) {
    DebitFigures figures;
    for (const DebitClaim& claim : claims) {
        ++figures.asked;
        figures.askedYen += claim.yen;
        if (!claim.debited) continue;
        ++figures.debited;
        figures.debitedYen += claim.yen;
    }
    return figures;
}

DebitClaims ReadDebitFile(const QString& path) {
    const QList<QByteArray> records = ReadRecords(path);
    DebitClaims claims;
    for (const QByteArray& record : records) {
        if (!IsClaim(record)) continue;
        const char result = record[kDebitResultPlace - 1];
        claims.push_back({kDebitCustomer.of(record).toInt(), kDebitAmount.of(record).toLongLong(),
                          result == '0' || result == ' '});
    }
    RequireTrailer(records, TotalsOf(claims), path);
    return claims;
}

void MarkDebitFile(const QString& path) {
    QList<QByteArray> records = ReadRecords(path);
    QFile file(path);
    if (!file.open(QFile::WriteOnly)) throw Failure(path + u" に書き込めません。"_s);
    int claim = 0;
    for (QByteArray& record : records) {
        if (IsClaim(record)) {
            const bool hasMoney = claim % 9 != 1;
            record[kDebitResultPlace - 1] = claim == 0 ? ' ' : (hasMoney ? '0' : '1');
            ++claim;
        }
        file.write(record + "\r\n");
    }
}

}  // namespace akarix::month
