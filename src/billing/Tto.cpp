#include "billing/Tto.h"

#include <functional>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

/// The condition that picks one row of the ledger.
QString OfLedgerRow(std::int32_t deal, BillingMonth month) {
    return u" WHERE Deal="_s + NumStr(deal) + u" AND   Nendo="_s + NumStr(month.nendo) + u" AND   Getudo="_s +
           NumStr(month.getudo);
}

/// Walks a whole set. Its rows are counted in 16 bits: more than 32,767 raise 6.
void ForEachRow(const QString& sql, const std::function<void(Recordset&)>& visit,
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
void PutAmount(const QString& column, std::int32_t deal, BillingMonth month, const QString& initial,
               const QString& amount) {
    gDb->Execute(u"INSERT INTO TtoD(Deal, Nendo, Getudo, "_s + column + u") VALUES("_s + NumStr(deal) + u',' +
                 NumStr(month.nendo) + u',' + NumStr(month.getudo) + u',' + initial + u')');
    gDb->Execute(u" UPDATE TtoD  SET   "_s + column + u" ="_s + amount + OfCustomerMonth(deal, month));
}

/// The sum of a customer's documents.
void PutSum(const QString& column, const Recordset& set, BillingMonth month) {
    const QString sum = NumStr(MoneyOf(set[u"tGaku"_s]));
    PutAmount(column, LongOf(set[u"Deal"_s]), month, sum, sum);
}

/// Sales of months that lost their slips.
void ClearSalesWithoutSlips(BillingMonth month) {
    gDb->Execute(
        u"UPDATE TtoD LEFT JOIN Dud ON (TtoD.Getudo = Dud.Getudo) AND (TtoD.Nendo = "
        "Dud.Nendo) AND (TtoD.Deal = Dud.Deal)  SET TtoD.UGaku = 0  WHERE "
        "TtoD.Nendo ="_s +
        NumStr(month.nendo) + u" AND   TtoD.Getudo="_s + NumStr(month.getudo) +
        u" AND   TtoD.UGaku<>0  AND   Dud.Dno IS NULL"_s);
}

void RememberClosingDate(BillingMonth month, Date creation) {
    Recordset set = gDb->OpenRecordset(
        u"SELECT Syukei.Nen, Syukei.Tuki, Syukei.Hizuke From Syukei WHERE "
        "Syukei.Nen="_s +
        NumStr(month.nendo) + u" AND Syukei.Tuki="_s + NumStr(month.getudo));
    if (set.Eof())
        set.AddNew();
    else
        set.Edit();
    set.Fields(u"Nen"_s) = month.nendo;
    set.Fields(u"Tuki"_s) = month.getudo;
    set.Fields(u"Hizuke"_s) = creation;
    set.Update();
    set.Close();
}

struct LeaseFees {
    std::int16_t alarm = 0;
    std::int16_t acu = 0;
};

LeaseFees ReadLeaseFees() {
    LeaseFees fees;
    ForEachRow(u"SELECT * FROM UserOP WHERE Code=2 or Code=3 ORDER BY Code"_s, [&fees](Recordset& set) {
        const std::int16_t fee = CInt(KeepNumeric(NullToEmpty(set[u"contents"_s])));
        (LongOf(set[u"Code"_s]) == 2 ? fees.alarm : fees.acu) = fee;
    });
    return fees;
}

/// Removes the slip that an earlier run made for the customer and month; gives its number, or 0.
std::int32_t RemoveLeaseSlip(std::int32_t deal, BillingMonth month) {
    const std::int32_t dno = LongOf(FirstValue(
        u"SELECT * FROM Dud "_s + OfCustomerMonth(deal, month) + u" AND   CreateAuto=1"_s, u"Dno"_s));
    if (dno != 0) gDb->Execute(u"DELETE FROM Dud WHERE Dno="_s + NumStr(dno));
    return dno;
}

/// Sets the balance carried in; a mark that it was set by hand stays.
void PutZenkaiGaku(std::int32_t deal, BillingMonth month, Currency amount) {
    Recordset set = gDb->OpenRecordset(u"SELECT Deal,Nendo,Getudo,ZenkaiGaku,SyokiFlg  FROM  TtoD "_s +
                                       OfLedgerRow(deal, month));
    if (set.Eof()) {
        set.AddNew();
        set.Fields(u"Deal"_s) = deal;
        set.Fields(u"Nendo"_s) = month.nendo;
        set.Fields(u"Getudo"_s) = month.getudo;
        set.Fields(u"ZenkaiGaku"_s) = amount;
        set.Fields(u"SyokiFlg"_s) = std::int16_t{0};
    } else {
        set.Edit();
        set.Fields(u"ZenkaiGaku"_s) = amount;
    }
    set.Update();
    set.Close();
}

/// Writes the customer's lease slip of the month anew, under its old number if it has one. A flag counts when
/// it is 1.
void MakeLeaseSlip(std::int32_t deal, BillingMonth month, Date creation, int acu, int keihou) {
    const LeaseFees fees = ReadLeaseFees();
    std::int32_t dno = RemoveLeaseSlip(deal, month);
    // A rebuilt slip keeps its number.
    if (dno == 0) dno = NextDudNo();
    std::int16_t eda = 1;
    const auto addLine = [&](const QString& name, std::int16_t fee) {
        gDb->Execute(
            u"INSERT INTO Dud(Dno, Eda, Hizuke, Deal, HinCode, HinNamae, Gaku, Nendo, "
            "Getudo, CreateAuto ) VALUES("_s +
            NumStr(dno) + u"      , "_s + NumStr(eda) + u"      , CDATE('"_s + DateText(creation) + u"') "_s +
            u"      , "_s + NumStr(deal) + u"      , 0 "_s + u"      ,'"_s + name + u"' "_s + u"      , "_s +
            NumStr(fee) + u"      , "_s + NumStr(month.nendo) + u"      , "_s + NumStr(month.getudo) +
            u"      ,1)"_s);
        ++eda;
    };
    if (acu == 1) addLine(u"ACUリース代"_s, fees.acu);
    if (keihou == 1) addLine(u"警報機リース代"_s, fees.alarm);
}

}  // namespace

void BuildMonthLedger(BillingMonth month, Date creation, Progress& progress) {
    ClearSalesWithoutSlips(month);
    progress.stage(u"検針"_s, true);
    ForEachRow(
        u"SELECT * FROM Dgd "_s + OfMonth(month) + u" ORDER BY Deal"_s,
        [=](Recordset& set) {
            PutAmount(u"GGaku"_s, LongOf(set[u"Deal"_s]), month, u"0"_s, NumStr(MoneyOf(set[u"Gaku"_s])));
        },
        progress);
    progress.stage(u"リース料"_s, true);
    ForEachRow(
        u"SELECT * FROM Deal  WHERE ACU=1 OR Keihou=1  ORDER BY Code"_s,
        [=](Recordset& set) {
            MakeLeaseSlip(LongOf(set[u"Code"_s]), month, creation, IntegerOf(set[u"ACU"_s]),
                          IntegerOf(set[u"Keihou"_s]));
        },
        progress);
    // After the lease slips, so that they are in the sum.
    progress.stage(u"売上"_s, true);
    ForEachRow(
        u"SELECT Deal, SUM(Gaku) AS tGaku  FROM  Dud "_s + OfMonth(month) +
            u" GROUP BY Deal  ORDER BY Deal"_s,
        [=](Recordset& set) { PutSum(u"UGaku"_s, set, month); }, progress);
    progress.stage(u"入金"_s, true);
    ForEachRow(
        u"SELECT Deal, SUM(Gaku) AS tGaku  FROM Dny "_s + OfMonth(month) + u" GROUP BY Deal  ORDER BY Deal"_s,
        [=](Recordset& set) { PutSum(u"NGaku"_s, set, month); }, progress);
    gDb->Execute(u"UPDATE TtoD SET Gaku = GGaku+UGaku "_s + OfMonth(month));
    RememberClosingDate(month, creation);
}

void CarryForwardMonth(BillingMonth month, Progress& progress) {
    progress.stage(u"繰越"_s, false);
    ForEachRow(
        u"SELECT Deal.Code FROM Deal"_s,
        [=](Recordset& set) {
            const std::int32_t deal = LongOf(set[u"Code"_s]);
            if (ReadLedgerHead(deal, month).syokiFlg == 0)
                PutZenkaiGaku(deal, month, MoneyOf(PriorBalance(deal, month)));
        },
        progress);
}

std::int32_t NextDudNo() {
    return HighestPlus(u"SELECT MAX(Dno) AS tDno FROM Dud"_s, 1);
}

LedgerHead ReadLedgerHead(std::int32_t deal, BillingMonth month) {
    Recordset set = gDb->OpenRecordset(u"SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg  FROM  TtoD "_s +
                                       OfLedgerRow(deal, month));
    LedgerHead head;
    if (!set.Eof()) head = {MoneyOf(set[u"ZenkaiGaku"_s]), IntegerOf(set[u"SyokiFlg"_s])};
    set.Close();
    return head;
}

Variant PriorBalance(std::int32_t deal, BillingMonth month) {
    Recordset set = gDb->OpenRecordset(
        u"SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg  FROM  TtoD  "
        "WHERE Deal="_s +
        NumStr(deal) + u" AND   Nendo*100+Getudo<"_s + NumStr(month.key()) +
        u" ORDER BY [Nendo]*100+[Getudo] DESC;"_s);
    Variant balance;
    if (!set.Eof()) {
        // Gaku is not asked: a month that was entered but never billed carries its gas and sales as well.
        balance = MoneyOf(set[u"ZenkaiGaku"_s]) + MoneyOf(set[u"GGaku"_s]) + MoneyOf(set[u"UGaku"_s]) -
                  MoneyOf(set[u"NGaku"_s]);
    }
    set.Close();
    return balance;
}

QString ReadClosingDate(BillingMonth month) {
    return NullToEmpty(FirstValue(u"SELECT Hizuke FROM Syukei  WHERE Nen="_s + NumStr(month.nendo) +
                                      u" AND Tuki="_s + NumStr(month.getudo),
                                  u"Hizuke"_s));
}

}  // namespace akarix
