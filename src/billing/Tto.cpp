#include "billing/Tto.h"

#include <functional>

#include "platform/runtime/CInt.h"
#include "store/CustomerMonth.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

/// " WHERE Nendo =... AND   Getudo=...", as every statement of the run on one month ends.
QString ofMonth(int nendo, int getudo) {
    return QStringLiteral(" WHERE Nendo =") + NumStr(nendo) + QStringLiteral(" AND   Getudo=") +
           NumStr(getudo);
}

/// The condition that picks one row of the ledger.
QString ofLedgerRow(std::int32_t deal, int nendo, int getudo) {
    return QStringLiteral(" WHERE Deal=") + NumStr(deal) + QStringLiteral(" AND   Nendo=") + NumStr(nendo) +
           QStringLiteral(" AND   Getudo=") + NumStr(getudo);
}

/// Walks a whole set. Its rows are counted in 16 bits: more than 32,767 raise 6.
void forEachRow(const QString& sql, const std::function<void(Recordset&)>& visit,
                Progress& progress = Progress::Silent()) {
    Recordset set = gDb->OpenRecordset(sql);
    if (!set.Eof()) {
        set.MoveLast();
        const std::int16_t count = CInt(set.RecordCount());
        set.MoveFirst();
        for (std::int16_t i = 0; i < count; ++i) {
            progress.step(i, count);
            visit(set);
            set.MoveNext();
        }
    }
    set.Close();
}

/// Makes the ledger row where there is none, then puts the amount in. The insert of a row that exists
/// changes nothing, so one road serves first and later runs.
void putAmount(const QString& column, int nendo, int getudo, std::int32_t deal, const QString& initial,
               const QString& amount) {
    const QString customer = NumStr(deal);
    const QString year = NumStr(nendo);
    const QString month = NumStr(getudo);
    gDb->Execute(QStringLiteral("INSERT INTO TtoD(Deal, Nendo, Getudo, ") + column +
                 QStringLiteral(") VALUES(") + customer + u',' + year + u',' + month + u',' + initial + u')');
    gDb->Execute(QStringLiteral(" UPDATE TtoD  SET   ") + column + QStringLiteral(" =") + amount +
                 OfCustomerMonth(customer, year, month));
}

/// Sales of months that lost their slips.
void clearSalesWithoutSlips(int nendo, int getudo) {
    gDb->Execute(QStringLiteral("UPDATE TtoD LEFT JOIN Dud ON (TtoD.Getudo = Dud.Getudo) AND (TtoD.Nendo = "
                                "Dud.Nendo) AND (TtoD.Deal = Dud.Deal)  SET TtoD.UGaku = 0  WHERE "
                                "TtoD.Nendo =") +
                 NumStr(nendo) + QStringLiteral(" AND   TtoD.Getudo=") + NumStr(getudo) +
                 QStringLiteral(" AND   TtoD.UGaku<>0  AND   Dud.Dno IS NULL"));
}

void rememberClosingDate(int nendo, int getudo, Date creation) {
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT Syukei.Nen, Syukei.Tuki, Syukei.Hizuke From Syukei WHERE "
                                          "Syukei.Nen=") +
                           NumStr(nendo) + QStringLiteral(" AND Syukei.Tuki=") + NumStr(getudo));
    if (set.Eof()) {
        set.AddNew();
    } else {
        set.Edit();
    }
    set.Fields(QStringLiteral("Nen")) = nendo;
    set.Fields(QStringLiteral("Tuki")) = getudo;
    set.Fields(QStringLiteral("Hizuke")) = creation;
    set.Update();
    set.Close();
}

struct LeaseFees {
    std::int16_t alarm = 0;
    std::int16_t acu = 0;
};

LeaseFees readLeaseFees() {
    LeaseFees fees;
    forEachRow(QStringLiteral("SELECT * FROM UserOP WHERE Code=2 or Code=3 ORDER BY Code"),
               [&fees](Recordset& set) {
                   const std::int16_t fee = CInt(KeepNumeric(NullToEmpty(set[QStringLiteral("contents")])));
                   (longOf(set[QStringLiteral("Code")]) == 2 ? fees.alarm : fees.acu) = fee;
               });
    return fees;
}

/// Removes the slip that an earlier run made for the customer and month; gives its number, or 0.
std::int32_t removeLeaseSlip(int nendo, int getudo, std::int32_t deal) {
    const std::int32_t dno =
        longOf(FirstValue(QStringLiteral("SELECT * FROM Dud ") + OfCustomerMonth(deal, nendo, getudo) +
                              QStringLiteral(" AND   CreateAuto=1"),
                          QStringLiteral("Dno")));
    if (dno != 0) gDb->Execute(QStringLiteral("DELETE FROM Dud WHERE Dno=") + NumStr(dno));
    return dno;
}

}  // namespace

void BuildMonthLedger(int nendo, int getudo, Date creation, Progress& progress) {
    clearSalesWithoutSlips(nendo, getudo);
    progress.stage(QStringLiteral("検針"), true);
    forEachRow(
        QStringLiteral("SELECT * FROM Dgd ") + ofMonth(nendo, getudo) + QStringLiteral(" ORDER BY Deal"),
        [=](Recordset& set) {
            PutGGaku(nendo, getudo, longOf(set[QStringLiteral("Deal")]),
                     moneyOf(set[QStringLiteral("Gaku")]));
        },
        progress);
    progress.stage(QStringLiteral("リース料"), true);
    forEachRow(
        QStringLiteral("SELECT * FROM Deal  WHERE ACU=1 OR Keihou=1  ORDER BY Code"),
        [=](Recordset& set) {
            MakeLeaseSlip(nendo, getudo, creation, longOf(set[QStringLiteral("Code")]),
                          integerOf(set[QStringLiteral("ACU")]), integerOf(set[QStringLiteral("Keihou")]),
                          integerOf(set[QStringLiteral("TankaPtn")]));
        },
        progress);
    // After the lease slips, so that they are in the sum.
    progress.stage(QStringLiteral("売上"), true);
    forEachRow(
        QStringLiteral("SELECT Deal, SUM(Gaku) AS tGaku  FROM  Dud ") + ofMonth(nendo, getudo) +
            QStringLiteral(" GROUP BY Deal  ORDER BY Deal"),
        [=](Recordset& set) {
            PutUGaku(nendo, getudo, longOf(set[QStringLiteral("Deal")]),
                     moneyOf(set[QStringLiteral("tGaku")]));
        },
        progress);
    progress.stage(QStringLiteral("入金"), true);
    forEachRow(
        QStringLiteral("SELECT Deal, SUM(Gaku) AS tGaku  FROM Dny ") + ofMonth(nendo, getudo) +
            QStringLiteral(" GROUP BY Deal  ORDER BY Deal"),
        [=](Recordset& set) {
            PutNGaku(nendo, getudo, longOf(set[QStringLiteral("Deal")]),
                     moneyOf(set[QStringLiteral("tGaku")]));
        },
        progress);
    gDb->Execute(QStringLiteral("UPDATE TtoD SET Gaku = GGaku+UGaku ") + ofMonth(nendo, getudo));
    rememberClosingDate(nendo, getudo, creation);
}

void CarryForwardMonth(int nendo, int getudo, Progress& progress) {
    progress.stage(QStringLiteral("繰越"), false);
    forEachRow(
        QStringLiteral("SELECT Deal.Code FROM Deal"),
        [=](Recordset& set) {
            const std::int32_t deal = longOf(set[QStringLiteral("Code")]);
            Currency zenkaiGaku;
            int syokiFlg = 0;
            ReadLedgerHead(deal, nendo, getudo, zenkaiGaku, syokiFlg);
            if (syokiFlg == 0) {
                PutZenkaiGaku(deal, nendo, getudo, moneyOf(PriorBalance(deal, nendo, getudo)));
            }
        },
        progress);
}

void PutGGaku(int nendo, int getudo, std::int32_t deal, Currency amount) {
    putAmount(QStringLiteral("GGaku"), nendo, getudo, deal, QStringLiteral("0"), NumStr(amount));
}

void PutUGaku(int nendo, int getudo, std::int32_t deal, Currency amount) {
    const QString text = NumStr(amount);
    putAmount(QStringLiteral("UGaku"), nendo, getudo, deal, text, text);
}

void PutNGaku(int nendo, int getudo, std::int32_t deal, Currency amount) {
    const QString text = NumStr(amount);
    putAmount(QStringLiteral("NGaku"), nendo, getudo, deal, text, text);
}

void PutZenkaiGaku(std::int32_t deal, int nendo, int getudo, Currency amount) {
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg  FROM  TtoD ") +
                           ofLedgerRow(deal, nendo, getudo));
    if (set.Eof()) {
        set.AddNew();
        set.Fields(QStringLiteral("Deal")) = deal;
        set.Fields(QStringLiteral("Nendo")) = nendo;
        set.Fields(QStringLiteral("Getudo")) = getudo;
        set.Fields(QStringLiteral("ZenkaiGaku")) = amount;
        set.Fields(QStringLiteral("SyokiFlg")) = std::int16_t{0};
    } else {
        set.Edit();
        set.Fields(QStringLiteral("ZenkaiGaku")) = amount;
    }
    set.Update();
    set.Close();
}

void MakeLeaseSlip(int nendo, int getudo, Date creation, std::int32_t deal, int acu, int keihou,
                   [[maybe_unused]] int tankaPtn) {
    const LeaseFees fees = readLeaseFees();
    std::int32_t dno = removeLeaseSlip(nendo, getudo, deal);
    // A rebuilt slip keeps its number.
    if (dno == 0) dno = NextDudNo();
    std::int16_t eda = 1;
    const auto addLine = [&](const QString& name, std::int16_t fee) {
        gDb->Execute(QStringLiteral("INSERT INTO Dud(Dno, Eda, Hizuke, Deal, HinCode, HinNamae, Gaku, Nendo, "
                                    "Getudo, CreateAuto ) VALUES(") +
                     NumStr(dno) + QStringLiteral("      , ") + NumStr(eda) +
                     QStringLiteral("      , CDATE('") + DateText(creation) + QStringLiteral("') ") +
                     QStringLiteral("      , ") + NumStr(deal) + QStringLiteral("      , 0 ") +
                     QStringLiteral("      ,'") + name + QStringLiteral("' ") + QStringLiteral("      , ") +
                     NumStr(fee) + QStringLiteral("      , ") + NumStr(nendo) + QStringLiteral("      , ") +
                     NumStr(getudo) + QStringLiteral("      ,1)"));
        ++eda;
    };
    if (acu == 1) addLine(QStringLiteral("ACUリース代"), fees.acu);
    if (keihou == 1) addLine(QStringLiteral("警報機リース代"), fees.alarm);
}

std::int32_t NextDudNo() {
    return HighestPlus(QStringLiteral("SELECT MAX(Dno) AS tDno FROM Dud"), 1);
}

void ReadLedgerHead(std::int32_t deal, int nendo, int getudo, Currency& zenkaiGaku, int& syokiFlg) {
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg  FROM  TtoD ") +
                           ofLedgerRow(deal, nendo, getudo));
    zenkaiGaku = Currency();
    syokiFlg = 0;
    if (!set.Eof()) {
        zenkaiGaku = moneyOf(set[QStringLiteral("ZenkaiGaku")]);
        syokiFlg = integerOf(set[QStringLiteral("SyokiFlg")]);
    }
    set.Close();
}

Variant PriorBalance(std::int32_t deal, int nendo, int getudo) {
    const std::int32_t month = nendo * 100 + getudo;
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg  FROM  TtoD  "
                                          "WHERE Deal=") +
                           NumStr(deal) + QStringLiteral(" AND   Nendo*100+Getudo<") + NumStr(month) +
                           QStringLiteral(" ORDER BY [Nendo]*100+[Getudo] DESC;"));
    Variant balance;
    if (!set.Eof()) {
        // Gaku is not asked: a month that was entered but never billed carries its gas and sales as well.
        balance = moneyOf(set[QStringLiteral("ZenkaiGaku")]) + moneyOf(set[QStringLiteral("GGaku")]) +
                  moneyOf(set[QStringLiteral("UGaku")]) - moneyOf(set[QStringLiteral("NGaku")]);
    }
    set.Close();
    return balance;
}

QString ReadClosingDate(std::int16_t year, std::int16_t month) {
    return NullToEmpty(FirstValue(QStringLiteral("SELECT Hizuke FROM Syukei  WHERE Nen=") + NumStr(year) +
                                      QStringLiteral(" AND Tuki=") + NumStr(month),
                                  QStringLiteral("Hizuke")));
}

}  // namespace akarix
