#include "debit/DebitRecords.h"

#include "debit/DebitQuery.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Trim.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

const QString kTwoDigits = QStringLiteral("00");
const QString kBankCode = QStringLiteral("0000");
const QString kCount = QStringLiteral("000000");
const QString kAmount = QStringLiteral("0000000000");
const QString kTotal = QStringLiteral("000000000000");
const QString kCustomer = QStringLiteral("00000000000000000000");

QString blanks(int width) {
    return QString(width, u' ');
}

QString toTheRight(const QString& text, int width, QChar fill) {
    return (QString(width, fill) + Trim(text)).right(width);
}

QString toTheLeft(const QString& text, int width) {
    return PadText(Trim(text), width);
}

QString monthAndDay(Date date) {
    return PadFormat(Month(date), kTwoDigits) + PadFormat(Day(date), kTwoDigits);
}

/// The front of the number: one that is too long loses its end. A text that is no number stays as it is.
QString accountNumber(const QString& koza, const QString& mask, int width) {
    return PadText(Format(koza, mask), width);
}

/// What the two request kinds have in common from the payer on, but for the codes.
QString claim(const DebitRow& row, Currency amount, QChar newCode, QChar result) {
    constexpr int kPayer = 30;
    constexpr int kFiller = 8;
    return PadText(row.Kana, kPayer) + PadFormat(amount, kAmount) + newCode + PadFormat(row.Deal, kCustomer) +
           result + blanks(kFiller);
}

QString officeNumber(std::int16_t stn) {
    constexpr int kShortest = 3;
    const QString digits = NumStr(stn);
    if (digits.size() <= kShortest) {
        return u'0' + PadFormat(stn, QStringLiteral("000")) + QStringLiteral("\r\n");
    }
    return Format(stn, QStringLiteral("0000")).mid(1, 3);
}

}  // namespace

Consignor FitBankConsignor(const Consignor& consignor) {
    Consignor fitted = consignor;
    fitted.ItakuCode = toTheRight(consignor.ItakuCode, 10, u'0');
    fitted.Itakusya = toTheLeft(consignor.Itakusya, 40);
    fitted.Bnk = toTheRight(consignor.Bnk, 4, u'0');
    fitted.BkName = toTheRight(consignor.BkName, 15, u' ');
    fitted.Stn = toTheRight(consignor.Stn, 3, u'0');
    fitted.StnName = toTheRight(consignor.StnName, 15, u' ');
    fitted.Syurui = toTheRight(consignor.Syurui, 1, u' ');
    fitted.KozaNo = toTheRight(consignor.KozaNo, 7, u'0');
    return fitted;
}

Consignor FitPostConsignor(const Consignor& consignor) {
    Consignor fitted = consignor;
    fitted.ItakuCode = toTheRight(consignor.ItakuCode, 8, u'0');
    fitted.Itakusya = toTheLeft(consignor.Itakusya, 40);
    fitted.Bnk = toTheRight(consignor.Bnk, 4, u'0');
    fitted.BkName = toTheLeft(consignor.BkName, 15);
    fitted.Stn = toTheRight(consignor.Stn, 3, u'0');
    fitted.KozaNo = toTheRight(consignor.KozaNo, 6, u'0');
    return fitted;
}

QString BankHeader(const Consignor& consignor, Date creation) {
    return QStringLiteral("1910") + consignor.ItakuCode + consignor.Itakusya + monthAndDay(creation) +
           consignor.Bnk + consignor.BkName + consignor.Stn + consignor.StnName + consignor.Syurui +
           consignor.KozaNo + blanks(17);
}

QString BankData(const DebitRow& row, Currency amount) {
    return u'2' + PadFormat(row.Bnk, kBankCode) + blanks(15) + PadFormat(row.Stn, QStringLiteral("000")) +
           blanks(15) + QStringLiteral("0000") + PadFormat(row.Kind, QStringLiteral("0")) +
           accountNumber(row.Koza, QStringLiteral("0000000"), 7) + claim(row, amount, u'0', u'0');
}

QString BankTrailer(int count, Currency total) {
    const QString none = PadFormat(0, kCount) + PadFormat(0, kTotal);
    return u'8' + PadFormat(count, kCount) + PadFormat(total, kTotal) + none + none + blanks(65);
}

QString PostHeader(const Consignor& consignor, Date creation, const RetransferDay& again) {
    return QStringLiteral("121") + blanks(3) + consignor.ItakuCode + consignor.Itakusya +
           monthAndDay(creation) + consignor.Bnk + consignor.BkName + consignor.Stn + blanks(17) +
           consignor.KozaNo + again.month + again.day + blanks(13);
}

QString PostData(const DebitRow& row, const Consignor& consignor, Currency amount) {
    return u'2' + PadFormat(row.Bnk, kBankCode) + consignor.BkName + officeNumber(row.Stn) + blanks(20) +
           accountNumber(row.Koza, QStringLiteral("00000000"), 7) + claim(row, amount, u'1', u' ');
}

QString PostTrailer(int count, Currency total) {
    return u'8' + PadFormat(count, kCount) + PadFormat(total, kTotal) + blanks(101);
}

QString DebitEnd() {
    return u'9' + blanks(119);
}

}  // namespace akarix
