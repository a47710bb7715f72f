#include "debit/DebitRecords.h"

#include "debit/DebitQuery.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const QString kTwoDigits = u"00"_s;
const QString kBankCode = u"0000"_s;
const QString kCount = u"000000"_s;
const QString kAmount = u"0000000000"_s;
const QString kTotal = u"000000000000"_s;
const QString kCustomer = u"00000000000000000000"_s;

QString Blanks(int width) {
    return QString(width, u' ');
}

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
QString AccountNumber(const QString& koza, const QString& mask, int width) {
    return PadText(Format(koza, mask), width);
}

/// What the two request kinds have in common from the payer on, but for the codes.
QString Claim(const DebitRow& row, Currency amount, QChar newCode, QChar result) {
    constexpr int kPayer = 30;
    constexpr int kFiller = 8;
    return PadText(row.Kana, kPayer) + PadFormat(amount, kAmount) + newCode + PadFormat(row.Deal, kCustomer) +
           result + Blanks(kFiller);
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
    return u"1910"_s + consignor.ItakuCode + consignor.Itakusya + MonthAndDay(creation) + consignor.Bnk +
           consignor.BkName + consignor.Stn + consignor.StnName + consignor.Syurui + consignor.KozaNo +
           Blanks(17);
}

QString BankData(const DebitRow& row, Currency amount) {
    return u'2' + PadFormat(row.Bnk, kBankCode) + Blanks(15) + PadFormat(row.Stn, u"000"_s) + Blanks(15) +
           u"0000"_s + PadFormat(row.Kind, u"0"_s) + AccountNumber(row.Koza, u"0000000"_s, 7) +
           Claim(row, amount, u'0', u'0');
}

QString BankTrailer(int count, Currency total) {
    const QString none = PadFormat(0, kCount) + PadFormat(0, kTotal);
    return u'8' + PadFormat(count, kCount) + PadFormat(total, kTotal) + none + none + Blanks(65);
}

QString PostHeader(const Consignor& consignor, Date creation, const RetransferDay& again) {
    return u"121"_s + Blanks(3) + consignor.ItakuCode + consignor.Itakusya + MonthAndDay(creation) +
           consignor.Bnk + consignor.BkName + consignor.Stn + Blanks(17) + consignor.KozaNo + again.month +
           again.day + Blanks(13);
}

QString PostData(const DebitRow& row, const Consignor& consignor, Currency amount) {
    return u'2' + PadFormat(row.Bnk, kBankCode) + consignor.BkName + OfficeNumber(row.Stn) + Blanks(20) +
           AccountNumber(row.Koza, u"00000000"_s, 7) + Claim(row, amount, u'1', u' ');
}

QString PostTrailer(int count, Currency total) {
    return u'8' + PadFormat(count, kCount) + PadFormat(total, kTotal) + Blanks(101);
}

QString DebitEnd() {
    return u'9' + Blanks(119);
}

}  // namespace akarix
