#pragma once

#include "Peer.h"
#include "platform/runtime/Date.h"

namespace akarix::bench {

/// The billing run by hand: the statements of the product's run, each prepared once, in one transaction.
class PeerBilling {
 public:
    explicit PeerBilling(PeerStore& store) : store_(store) {}

    void run(int nendo, int getudo, Date creation) {
        store_.run("BEGIN IMMEDIATE");
        build(nendo, getudo, creation.Serial());
        carryForward(nendo, getudo);
        store_.run("COMMIT");
    }

 private:
    static constexpr std::int64_t kScale = 10000;

    struct Put {
        PeerStatement insert;
        PeerStatement update;

        void amount(std::int64_t deal, int nendo, int getudo, std::int64_t initial, std::int64_t amount) {
            insert.with(deal, nendo, getudo, initial).run();
            update.with(amount, deal, nendo, getudo).run();
        }
    };

    void build(int nendo, int getudo, double creation) {
        clearSales_.with(nendo, getudo).run();
        for (readings_.with(nendo, getudo); readings_.next();)
            putGas_.amount(readings_.whole(0), nendo, getudo, 0, readings_.whole(1));
        for (leases_.with(); leases_.next();) {
            leaseSlip(leases_.whole(0), leases_.whole(1) == 1, leases_.whole(2) == 1, nendo, getudo,
                      creation);
        }
        for (sales_.with(nendo, getudo); sales_.next();)
            putSales_.amount(sales_.whole(0), nendo, getudo, sales_.whole(1), sales_.whole(1));
        for (payments_.with(nendo, getudo); payments_.next();)
            putPaid_.amount(payments_.whole(0), nendo, getudo, payments_.whole(1), payments_.whole(1));
        addUp_.with(nendo, getudo).run();
        closingDay_.with(nendo, getudo);
        const bool known = closingDay_.next();
        closingDay_.reset();
        (known ? moveClosing_ : addClosing_).with(creation, nendo, getudo).run();
    }

    void leaseSlip(std::int64_t deal, bool acu, bool alarm, int nendo, int getudo, double creation) {
        std::int64_t fees[2] = {};
        for (fees_.with(); fees_.next();)
            fees[fees_.whole(0) - 2] = fees_.whole(1) * kScale;
        ownSlip_.with(deal, nendo, getudo);
        std::int64_t number = ownSlip_.next() ? ownSlip_.whole(0) : 0;
        ownSlip_.reset();
        if (number != 0) {
            removeSlip_.with(number).run();
        } else {
            lastSlip_.with().next();
            number = lastSlip_.whole(0) + 1;
            lastSlip_.reset();
        }
        int line = 0;
        const auto add = [&](const char* name, std::int64_t fee) {
            addSlip_.with(number, ++line, creation, deal, name, fee, nendo, getudo).run();
        };
        if (acu) add("ACUリース代", fees[1]);
        if (alarm) add("警報機リース代", fees[0]);
    }

    void carryForward(int nendo, int getudo) {
        for (customers_.with(); customers_.next();) {
            const std::int64_t deal = customers_.whole(0);
            head_.with(deal, nendo, getudo);
            const bool fixedByHand = head_.next() && head_.whole(5) != 0;
            head_.reset();
            if (fixedByHand) continue;
            earlier_.with(deal, nendo * 100 + getudo);
            std::int64_t balance = 0;
            if (earlier_.next())
                balance = earlier_.whole(0) + earlier_.whole(1) + earlier_.whole(2) - earlier_.whole(4);
            earlier_.reset();
            row_.with(deal, nendo, getudo);
            const std::int64_t number = row_.next() ? row_.whole(0) : 0;
            row_.reset();
            if (number != 0)
                carry_.with(balance, number).run();
            else
                addCarried_.with(deal, nendo, getudo, balance).run();
        }
    }

    PeerStore& store_;
    PeerStatement clearSales_{
        store_,
        "UPDATE OR IGNORE TtoD SET UGaku=0 WHERE Nendo=?1 AND Getudo=?2 AND UGaku<>0 AND NOT EXISTS(SELECT 1 "
        "FROM Dud "
        "WHERE Dud.Getudo=TtoD.Getudo AND Dud.Nendo=TtoD.Nendo AND Dud.Deal=TtoD.Deal)"};
    PeerStatement readings_{store_, "SELECT Deal,Gaku FROM Dgd WHERE Nendo=?1 AND Getudo=?2 ORDER BY Deal"};
    PeerStatement leases_{store_, "SELECT Code,ACU,Keihou FROM Deal WHERE ACU=1 OR Keihou=1 ORDER BY Code"};
    PeerStatement sales_{
        store_, "SELECT Deal,SUM(Gaku) FROM Dud WHERE Nendo=?1 AND Getudo=?2 GROUP BY Deal ORDER BY Deal"};
    PeerStatement payments_{
        store_, "SELECT Deal,SUM(Gaku) FROM Dny WHERE Nendo=?1 AND Getudo=?2 GROUP BY Deal ORDER BY Deal"};
    PeerStatement addUp_{store_, "UPDATE OR IGNORE TtoD SET Gaku=GGaku+UGaku WHERE Nendo=?1 AND Getudo=?2"};
    PeerStatement closingDay_{store_, "SELECT Hizuke FROM Syukei WHERE Nen=?1 AND Tuki=?2"};
    PeerStatement moveClosing_{store_, "UPDATE OR FAIL Syukei SET Hizuke=?1 WHERE Nen=?2 AND Tuki=?3"};
    PeerStatement addClosing_{store_, "INSERT INTO Syukei(Hizuke,Nen,Tuki) VALUES(?1,?2,?3)"};
    Put putGas_{
        {store_, "INSERT OR IGNORE INTO TtoD(Deal,Nendo,Getudo,GGaku) VALUES(?1,?2,?3,?4)"},
        {store_, "UPDATE OR IGNORE TtoD SET GGaku=?1 WHERE Deal=?2 AND Nendo=?3 AND Getudo=?4"},
    };
    Put putSales_{
        {store_, "INSERT OR IGNORE INTO TtoD(Deal,Nendo,Getudo,UGaku) VALUES(?1,?2,?3,?4)"},
        {store_, "UPDATE OR IGNORE TtoD SET UGaku=?1 WHERE Deal=?2 AND Nendo=?3 AND Getudo=?4"},
    };
    Put putPaid_{
        {store_, "INSERT OR IGNORE INTO TtoD(Deal,Nendo,Getudo,NGaku) VALUES(?1,?2,?3,?4)"},
        {store_, "UPDATE OR IGNORE TtoD SET NGaku=?1 WHERE Deal=?2 AND Nendo=?3 AND Getudo=?4"},
    };
    PeerStatement fees_{store_, "SELECT Code,contents FROM UserOP WHERE Code=2 OR Code=3 ORDER BY Code"};
    PeerStatement ownSlip_{store_,
                           "SELECT Dno FROM Dud WHERE Deal=?1 AND Nendo=?2 AND Getudo=?3 AND CreateAuto=1"};
    PeerStatement removeSlip_{store_, "DELETE FROM Dud WHERE Dno=?1"};
    PeerStatement lastSlip_{store_, "SELECT MAX(Dno) FROM Dud"};
    PeerStatement addSlip_{
        store_,
        "INSERT OR IGNORE INTO Dud(Dno,Eda,Hizuke,Deal,HinCode,HinNamae,Gaku,Nendo,Getudo,CreateAuto) "
        "VALUES(?1,?2,?3,?4,0,?5,?6,?7,?8,1)"};
    PeerStatement customers_{store_, "SELECT Code FROM Deal"};
    PeerStatement head_{store_,
                        "SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD WHERE Deal=?1 AND "
                        "Nendo=?2 AND Getudo=?3"};
    PeerStatement earlier_{store_,
                           "SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD WHERE Deal=?1 AND "
                           "Nendo*100+Getudo<?2 ORDER BY Nendo*100+Getudo DESC"};
    PeerStatement row_{store_, "SELECT rowid FROM TtoD WHERE Deal=?1 AND Nendo=?2 AND Getudo=?3"};
    PeerStatement carry_{store_, "UPDATE OR FAIL TtoD SET ZenkaiGaku=?1 WHERE rowid=?2"};
    PeerStatement addCarried_{
        store_, "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg) VALUES(?1,?2,?3,?4,0)"};
};

}  // namespace akarix::bench
