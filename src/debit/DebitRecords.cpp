#include "debit/DebitRecords.h"

#include "debit/DebitLayout.h"
#include "debit/DebitQuery.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const QString kNone;
const QString kTwoDigits = u"00"_s;
const QString kBankCode = u"0000"_s;
const QString kCount = u"000000"_s;
const QString kAmount = u"0000000000"_s;
const QString kTotal = u"000000000000"_s;
const QString kCustomer = u"00000000000000000000"_s;

QString ToTheRight(const QString& text, int width, QChar fill) {
    return (QString(width, fill) + Trim(text)).right(width);
}

QString ToTheLeft(const QString& text, int width) {
    return PadText(Trim(text), width);
}

QString MonthAndDay(Date date) {
    return PadFormat(Month(date), kTwoDigits) + PadFormat(Day(date), kTwoDigits);
}

/// The front of the number: one that is too long loses its end. A text that is no number stays as it is.
QString AccountNumber(const QString& koza, const QString& mask) {
    return PadText(Format(koza, mask), 7);
}

QString Payer(const DebitRow& row) {
    return PadText(row.Kana, 30);
}

QString OfficeNumber(std::int16_t stn) {
    constexpr int kShortest = 3;
    const QString digits = NumStr(stn);
    if (digits.size() <= kShortest) return u'0' + PadFormat(stn, u"000"_s) + u"\r\n"_s;
    return Format(stn, u"0000"_s).mid(1, 3);
}

}  // namespace

Consignor FitBankConsignor(const Consignor& consignor) {
    Consignor fitted = consignor;
    fitted.ItakuCode = ToTheRight(consignor.ItakuCode, 10, u'0');
    fitted.Itakusya = ToTheLeft(consignor.Itakusya, 40);
    fitted.Bnk = ToTheRight(consignor.Bnk, 4, u'0');
    fitted.BkName = ToTheRight(consignor.BkName, 15, u' ');
    fitted.Stn = ToTheRight(consignor.Stn, 3, u'0');
    fitted.StnName = ToTheRight(consignor.StnName, 15, u' ');
    fitted.Syurui = ToTheRight(consignor.Syurui, 1, u' ');
    fitted.KozaNo = ToTheRight(consignor.KozaNo, 7, u'0');
    return fitted;
}

Consignor FitPostConsignor(const Consignor& consignor) {
    Consignor fitted = consignor;
    fitted.ItakuCode = ToTheRight(consignor.ItakuCode, 8, u'0');
    fitted.Itakusya = ToTheLeft(consignor.Itakusya, 40);
    fitted.Bnk = ToTheRight(consignor.Bnk, 4, u'0');
    fitted.BkName = ToTheLeft(consignor.BkName, 15);
    fitted.Stn = ToTheRight(consignor.Stn, 3, u'0');
    fitted.KozaNo = ToTheRight(consignor.KozaNo, 6, u'0');
    return fitted;
}

QString BankHeader(const Consignor& consignor, Date creation) {
    return ComposeDebit(
        DebitForm::Bank, '1',
        {u"91"_s, u"0"_s, consignor.ItakuCode, consignor.Itakusya, MonthAndDay(creation), consignor.Bnk,
         consignor.BkName, consignor.Stn, consignor.StnName, consignor.Syurui, consignor.KozaNo});
}

QString BankData(const DebitRow& row, Currency amount) {
    return ComposeDebit(DebitForm::Bank, '2',
                        {PadFormat(row.Bnk, kBankCode), kNone, PadFormat(row.Stn, u"000"_s), kNone, u"0000"_s,
                         PadFormat(row.Kind, u"0"_s), AccountNumber(row.Koza, u"0000000"_s), Payer(row),
                         PadFormat(amount, kAmount), u"0"_s, PadFormat(row.Deal, kCustomer), u"0"_s});
}

QString BankTrailer(int count, Currency total) {
    const QString none = PadFormat(0, kCount);
    const QString nothing = PadFormat(0, kTotal);
    return ComposeDebit(DebitForm::Bank, '8',
                        {PadFormat(count, kCount), PadFormat(total, kTotal), none, nothing, none, nothing});
}

QString PostHeader(const Consignor& consignor, Date creation, const RetransferDay& again) {
    return ComposeDebit(
        DebitForm::PostOffice, '1',
        {u"21"_s, consignor.ItakuCode, consignor.Itakusya, MonthAndDay(creation), consignor.Bnk,
         consignor.BkName, consignor.Stn, consignor.KozaNo, again.month + again.day});
}

QString PostData(const DebitRow& row, const Consignor& consignor, Currency amount) {
    return ComposeDebit(DebitForm::PostOffice, '2',
                        {PadFormat(row.Bnk, kBankCode), consignor.BkName, OfficeNumber(row.Stn),
                         AccountNumber(row.Koza, u"00000000"_s), Payer(row), PadFormat(amount, kAmount),
                         u"1"_s, PadFormat(row.Deal, kCustomer), kNone});
}

QString PostTrailer(int count, Currency total) {
    return ComposeDebit(DebitForm::PostOffice, '8', {PadFormat(count, kCount), PadFormat(total, kTotal)});
}

QString DebitEnd() {
    return ComposeDebit(DebitForm::Bank, '9', {});
}

}  // namespace akarix
