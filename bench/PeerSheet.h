#pragma once

#include <vector>

#include "Peer.h"

namespace akarix::bench {

/// The reading sheet's statements by hand: the rows of a month that is opened, and the reading of its rows
/// with each customer's name.
class PeerSheet {
 public:
    explicit PeerSheet(PeerStore& store) : store_(store) {}

    void open(int nendo, int getudo, int day) {
        store_.run("BEGIN IMMEDIATE");
        for (customers_.with(); customers_.next();) {
            const std::int64_t deal = customers_.whole(0);
            before_.with(deal, nendo * 100 + getudo);
            const std::int64_t meter = before_.next() ? before_.whole(0) : 0;
            before_.reset();
            add_.with(nendo, getudo, deal, meter, day).run();
        }
        store_.run("COMMIT");
    }

    std::size_t read(int nendo, int getudo) {
        std::vector<Row> rows;
        for (rows_.with(nendo, getudo); rows_.next();) {
            Row& row = rows.emplace_back();
            for (int column = 0; column < kColumns; ++column)
                row.values[column] = rows_.whole(column);
            name_.with(row.values[2]).next();
            row.name = name_.text(0);
            name_.reset();
        }
        return rows.size();
    }

 private:
    static constexpr int kColumns = 10;
    struct Row {
        std::int64_t values[kColumns];
        QString name;
    };

    PeerStore& store_;
    PeerStatement customers_{store_, "SELECT * FROM Deal WHERE Code>0"};
    PeerStatement before_{store_,
                          "SELECT KonkaiMeter FROM Dgd WHERE Deal=?1 AND Nendo*100+Getudo<?2 ORDER BY "
                          "Nendo*100+Getudo DESC LIMIT 1"};
    PeerStatement add_{store_,
                       "INSERT OR IGNORE INTO Dgd(Nendo,Getudo,Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,"
                       "KonkaiMeter,Suu,Gaku,Hi) VALUES(?1,?2,?3,?4,0,0,0,0,0,?5)"};
    PeerStatement rows_{store_,
                        "SELECT Nendo,Getudo,Dgd.Deal,ZenkaiMeter,KoukanMeter,KoukanGoMeter,KonkaiMeter,Suu,"
                        "Gaku,Hi FROM Dgd INNER JOIN Deal ON Dgd.Deal=Deal.Code WHERE Nendo=?1 AND "
                        "Getudo=?2 ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"};
    PeerStatement name_{store_, "SELECT Namae FROM Deal WHERE Code=?1"};
};

}  // namespace akarix::bench
