#include "month/DebitFile.h"

#include <QFile>
#include <algorithm>

#include "month/Failure.h"

namespace akarix::month {

namespace {

// Places of a record, from 0.
constexpr int recordWidth = 120;
constexpr int amountAt = 80;
constexpr int customerAt = 91;
constexpr int resultAt = 111;

QList<QByteArray> readRecords(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + QStringLiteral(" が読めません。"));
    QList<QByteArray> records = file.readAll().split('\n');
    records.removeLast();  // nothing stands behind the last end of line
    for (QByteArray& record : records) {
        if (!record.endsWith('\r') || record.size() != recordWidth + 1) {
            throw Failure(path + QStringLiteral(" に 120 桁でない行があります。"));
        }
        record.chop(1);
    }
    return records;
}

bool isClaim(const QByteArray& record) {
    return record.startsWith('2');
}

void requireTrailer(const QList<QByteArray>& records, const DebitFigures& figures, const QString& path) {
    const auto trailer = std::find_if(records.begin(), records.end(),
                                      [](const QByteArray& record) { return record.startsWith('8'); });
    if (trailer == records.end() || trailer->mid(1, 6).toLongLong() != figures.asked ||
        trailer->mid(7, 12).toLongLong() != figures.askedYen) {
        throw Failure(path + QStringLiteral(" の合計が明細と違います。"));
    }
}

}  // namespace

DebitFigures totalsOf(const DebitClaims& claims) {
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

DebitClaims readDebitFile(const QString& path) {
    const QList<QByteArray> records = readRecords(path);
    DebitClaims claims;
    for (const QByteArray& record : records) {
        if (!isClaim(record)) continue;
        const char result = record[resultAt];
        claims.push_back({record.mid(customerAt, 20).toInt(), record.mid(amountAt, 10).toLongLong(),
                          result == '0' || result == ' '});
    }
    requireTrailer(records, totalsOf(claims), path);
    return claims;
}

void markDebitFile(const QString& path) {
    QList<QByteArray> records = readRecords(path);
    QFile file(path);
    if (!file.open(QFile::WriteOnly)) throw Failure(path + QStringLiteral(" に書き込めません。"));
    int claim = 0;
    for (QByteArray& record : records) {
        if (isClaim(record)) {
            const bool hasMoney = claim % 9 != 1;
            record[resultAt] = claim == 0 ? ' ' : (hasMoney ? '0' : '1');
            ++claim;
        }
        file.write(record + "\r\n");
    }
}

}  // namespace akarix::month
