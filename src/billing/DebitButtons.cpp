#include "billing/DebitButtons.h"

#include <initializer_list>

#include "debit/BankDebitFile.h"
#include "debit/BankStatement.h"
#include "debit/DebitReader.h"
#include "debit/PostDebitFile.h"
#include "debit/PostStatement.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/Consignor.h"
#include "toolkit/FieldWalk.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

const QString kTwoDigits = u"00"_s;

QString WeekdayOf(Date date) {
    return IsDateSet(date) ? YobiName(date) : QString();
}

}  // namespace

void DebitButtons::reset() {
    for (QWidget* part :
         std::initializer_list<QWidget*>{on_.saihiHead, on_.eSaihi, on_.lyobi2, on_.saihiHint})
        part->hide();
    on_.eSaihi->SetText({});
    on_.Progress->SetCaption({});
    again_ = {};
    opened_ = Today();
}

void DebitButtons::writeBank() {
    if (creationStands()) WriteBankDebit(wish(), on_.bank->Text(), progress());
}

void DebitButtons::writePost() {
    if (!creationStands()) return;
    const Consignor consignor = LoadPostConsignor();
    if (!consignor.Saifurikae.isEmpty()) {
        proposeRetransfer(consignor.Saifurikae);
        return;
    }
    const QString none(2, u' ');
    if (again_.month.isEmpty()) again_.month = none;
    if (again_.day.isEmpty()) again_.day = none;
    writePostFile();
}

/// The second date stands in the month behind the first. It may not exist in a short month; the clerk mends
/// it.
void DebitButtons::proposeRetransfer(const QString& dayOfMonth) {
    const Date creation = ParseDate(on_.creation->Text());
    const Date next = DateSerial(Year(creation), Month(creation) + 1, 1);
    again_ = {PadFormat(Month(next), kTwoDigits), PadFormat(KeepNumeric(dayOfMonth), kTwoDigits)};
    for (QWidget* part :
         std::initializer_list<QWidget*>{on_.saihiHead, on_.eSaihi, on_.lyobi2, on_.saihiHint})
        part->show();
    on_.eSaihi->SetText(NumStr(DisplayYear(next)) + u'/' + again_.month + u'/' + again_.day);
    on_.lyobi2->SetCaption(WeekdayOf(ParseDate(on_.eSaihi->Text())));
    FocusSelect(*on_.eSaihi);
}

void DebitButtons::enterRetransfer() {
    const Date date = ParseDate(on_.eSaihi->Text());
    if (!IsDateSet(date)) return;
    on_.lyobi2->SetCaption(WeekdayOf(date));
    if (creationStands()) writePostFile();
}

void DebitButtons::writePostFile() {
    WritePostDebit(wish(), again_, on_.eSaihi->Text(), progress());
}

void DebitButtons::readBank() {
    ReadBankResult(on_.bank->Text(), progress());
}

void DebitButtons::readPost() {
    ReadPostResult(progress());
}

void DebitButtons::printBank() {
    const DebitWish asked = wish();
    PrintBankStatement(CInt(KeepNumeric(on_.bank->Text())), asked.month);
}

void DebitButtons::printPost() {
    const DebitWish asked = wish();
    PrintPostStatement(asked.month, on_.creation->Text(), opened_);
}

/// Its month and day go into the file.
bool DebitButtons::creationStands() const {
    if (IsDateSet(ParseDate(on_.creation->Text()))) return true;
    ShowAlert(u"作成日を正しく入れて下さい。"_s);
    return false;
}

DebitWish DebitButtons::wish() const {
    return {{CLng(KeepNumeric(on_.year->Text())), CLng(KeepNumeric(on_.month->Text()))},
            ParseDate(on_.creation->Text())};
}

ShowProgress DebitButtons::progress() const {
    return [label = on_.Progress](const QString& text) {
        label->SetCaption(text);
        label->repaint();  // the run does not let the screen breathe
    };
}

}  // namespace akarix
