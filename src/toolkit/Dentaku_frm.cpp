#include "toolkit/Dentaku_frm.h"

#include <QGridLayout>
#include <QScreen>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/forms/FieldLayout.h"
#include "platform/forms/MemoBox.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Text.h"
#include "toolkit/Evaluate.h"
#include "toolkit/FieldWalk.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

const std::array<QString, 4> kMasks = {u"###,###,###,###,##0"_s, u"###,###,###,###,##0.0"_s,
                                       u"###,###,###,###,##0.00"_s, u"###,###,###,###,##0.000"_s};

bool HoldsOperator(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c == u'*' || c == u'+' || c == u'-' || c == u'/'; });
}

}  // namespace

Dentaku_frm::Dentaku_frm() : Form(u"電卓"_s, u"メモ型電卓"_s) {
    setFixedSize(Twips(3825), Twips(5715));

    eSiki_ = &Named(new MemoBox, u"eSiki"_s);
    eAns_ = &Named(new TextBox, u"eAns"_s);
    eAns_->SetIMEMode(ImeMode::Off);
    eAns_->setAlignment(Qt::AlignRight);
    Combo1_ = &Named(new ComboBox, u"Combo1"_s);
    for (int decimals = 0; decimals < 4; ++decimals)
        Combo1_->AddItem(QString::number(decimals), decimals);
    Combo1_->SetListIndex(1);
    CommandButton& clear = Named(new CommandButton(u"クリア"_s), u"Command1"_s);
    for (QWidget* control : std::initializer_list<QWidget*>{eSiki_, eAns_, Combo1_, &clear})
        JoinWalk(*this, *control);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(new Label(u"式を入れてEnterを押して下さい。"_s), 0, 0, 1, 2);
    layout->addWidget(eSiki_, 1, 0, 1, 2);
    auto* hints = new QHBoxLayout;
    hints->addWidget(new Label(u"掛け算 = *"_s));
    hints->addStretch();
    hints->addWidget(new Label(u"割り算 = /"_s));
    layout->addLayout(hints, 2, 0, 1, 2);
    layout->addWidget(eAns_, 3, 0, 1, 2);
    layout->addWidget(new Label(u"少数以下"_s), 4, 0);
    layout->addWidget(Combo1_, 4, 1);
    layout->addWidget(&clear, 5, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(1, 1);

    on(eSiki_, &MemoBox::KeyDown, [this](KeyEvent& event) {
        if (event.KeyCode != key::Return) return;
        event.KeyCode = 0;
        answerMemo();
    });
    on(Combo1_, &ComboBox::Click, [this] { reformatAnswer(); });
    on(Combo1_, &ComboBox::LostFocus, [this] { reformatAnswer(); });
    on(&clear, &CommandButton::Click, [this] {
        eSiki_->SetText({});
        eAns_->SetText({});
    });
}

void Dentaku_frm::init() {
    // A window is given its place when it is first shown; this one stands out of the way of the screen that
    // is being filled in, until the clerk moves it.
    if (!std::exchange(inCorner_, true)) move(screen()->availableGeometry().topLeft());
    SetFocus(eSiki_);
}

void Dentaku_frm::answerMemo() {
    const QString memo = Trim(eSiki_->Text());
    // A bare number is a note, no question: it is not echoed as an answer.
    ShowAnswer(HoldsOperator(memo) ? Evaluate(memo) : Currency());
}

void Dentaku_frm::reformatAnswer() {
    if (!HasText(eAns_->Text())) return;
    try {
        ShowAnswer(CCur(NumVal(eAns_->Text())));
    } catch (const RuntimeError&) {
        // More digits than an amount has are no answer of this window; they stay as they were typed.
    }
}

QString Dentaku_frm::ShowAnswer(Currency value) {
    const int decimals = std::max(Combo1_->ListIndex(), 0);
    const QString text = Format(value, kMasks[static_cast<std::size_t>(decimals)]);
    eAns_->SetText(text);
    return text;
}

}  // namespace akarix
