#pragma once

#include <unistd.h>

#include <QFile>
#include <array>
#include <cstdio>

#include "Peer.h"
#include "platform/runtime/Date.h"
#include "store/Consignor.h"

namespace akarix::bench {

/// The post office's request and its result by hand: bytes put together in place, each statement prepared
/// once, all payments in one transaction.
class PeerDebit {
 public:
    explicit PeerDebit(PeerStore& store) : store_(store) {}

    /// \param head the header, trailer's and end's records are short work for both
    void write(const char* path, const QByteArray& head, const QByteArray& office, int nendo, int getudo) {
        QByteArray bytes = head + "\r\n";
        int count = 0;
        std::int64_t total = 0;
        for (asked_.with(nendo, getudo); asked_.next();) {
            const std::int64_t balance = asked_.whole(1);
            const std::int64_t fixed = asked_.whole(2);
            const std::int64_t amount = (fixed != 0 && fixed <= balance ? fixed : balance) / kScale;
            appendRecord(bytes, office, amount);
            ++count;
            total += amount;
        }
        std::array<char, 40> totals{};
        std::snprintf(totals.data(), totals.size(), "8%06d%012lld", count, static_cast<long long>(total));
        bytes += QByteArray(totals.data()).leftJustified(120) + "\r\n" + QByteArray("9").leftJustified(120) +
                 "\r\n";
        std::FILE* file = std::fopen(path, "wb");
        std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
        std::fflush(file);
        fsync(fileno(file));
        std::fclose(file);
    }

    void read(const char* path, Date debited, int year, int month, int day) {
        QFile file(QString::fromUtf8(path));
        if (!file.open(QFile::ReadOnly)) throw std::runtime_error("no file");
        const QByteArray bytes = file.readAll();
        store_.run("BEGIN IMMEDIATE");
        constexpr int kLine = 122;
        for (qsizetype at = kLine; bytes[at] != '8' && bytes[at] != '9'; at += kLine) {
            if (bytes[at + 111] > '0') continue;
            post(bytes.mid(at + 91, 20).toLongLong(), bytes.mid(at + 80, 10).toLongLong(), debited, year,
                 month, day);
        }
        log_.with(year, month).run();
        store_.run("COMMIT");
    }

 private:
    static constexpr std::int64_t kScale = 10000;

    void appendRecord(QByteArray& bytes, const QByteArray& office, std::int64_t amount) {
        std::array<char, 60> front{};
        std::snprintf(front.data(), front.size(), "2%04d%s%.3s%20s%.7s", static_cast<int>(asked_.whole(4)),
                      office.constData(), QByteArray::number(asked_.whole(5)).constData() + 1, "",
                      QByteArray::number(asked_.text(7).toLongLong()).rightJustified(8, '0').constData());
        bytes += front.data();
        bytes += narrow(asked_.text(3)).leftJustified(30, ' ', true);
        std::array<char, 60> back{};
        std::snprintf(back.data(), back.size(), "%010lld1%020lld%9s\r\n", static_cast<long long>(amount),
                      static_cast<long long>(asked_.whole(0)), "");
        bytes += back.data();
    }
    /// Half-width kana and plain characters, which is all that stands in the column.
    static QByteArray narrow(const QString& kana) {
        QByteArray bytes;
        for (const QChar c : kana)
            bytes += static_cast<char>(c.unicode() >= 0xFF61 ? c.unicode() - 0xFF61 + 0xA1 : c.unicode());
        return bytes.trimmed();
    }

    void post(std::int64_t deal, std::int64_t amount, Date debited, int year, int month, int day) {
        closing_.with(deal);
        const bool late = closing_.next() && closing_.whole(0) < day;
        closing_.reset();
        const int index = year * 12 + month - 1 + (late ? 1 : 0);
        next_.with().next();
        const std::int64_t number = next_.whole(0);
        next_.reset();
        pay_.with(number, debited.Serial(), deal, index / 12, index % 12 + 1, amount * kScale).run();
        settle_.with(amount * kScale, deal, index / 12, index % 12 + 1).run();
    }

    PeerStore& store_;
    PeerStatement asked_{
        store_,
        "SELECT d.Code,SUM(t.ZenkaiGaku+t.Gaku-t.NGaku),d.DiscGaku,d.Kana,d.Bnk,d.Stn,d.Kind,d.Koza FROM "
        "TtoD t "
        "JOIN Deal d ON t.Deal=d.Code WHERE t.ZenkaiGaku+t.Gaku-t.NGaku>0 AND d.Bnk=9900 AND t.Nendo=?1 AND "
        "t.Getudo=?2 GROUP BY d.Bnk,d.Stn,d.Kind,d.Koza COLLATE BINARY ORDER BY d.Rte,d.Haisou,d.Code"};
    PeerStatement closing_{store_, "SELECT Sime FROM Deal WHERE Code=?1"};
    PeerStatement next_{store_, "SELECT MAX(Dno)+1 FROM Dny"};
    PeerStatement pay_{
        store_, "INSERT INTO Dny(Dno,Hizuke,Deal,Nendo,Getudo,Gaku,Kubun) VALUES(?1,?2,?3,?4,?5,?6,2)"};
    PeerStatement settle_{store_,
                          "UPDATE OR IGNORE TtoD SET NGaku=?1 WHERE Deal=?2 AND Nendo=?3 AND Getudo=?4"};
    PeerStatement log_{store_, "INSERT INTO FDLog(Bnk,Nendo,Getudo) VALUES(9900,?1,?2)"};
};

}  // namespace akarix::bench
