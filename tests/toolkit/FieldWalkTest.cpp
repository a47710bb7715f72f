#include "toolkit/FieldWalk.h"

#include <QVBoxLayout>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "support/ScreenTest.h"
#include "toolkit/EntryForm.h"

namespace akarix {
namespace {

/// Four fields, a combo and a button, numbered by hand so that a test can break the numbering.
class Desk : public EntryForm {
 public:
    Desk() : EntryForm(u"Desk"_s, u"机"_s) {
        auto* layout = new QVBoxLayout(this);
        for (int i = 0; i < 4; ++i) {
            layout->addWidget(&addBox(i, ImeMode::NoControl));
            SetTabIndex(&ebox(i), i);
        }
        layout->addWidget(&combo);
        combo.setObjectName(u"Combo1"_s);
        SetTabIndex(&combo, 4);
        layout->addWidget(&Btn.add(0, newButton(u"保存"_s, [] {})));
        SetTabIndex(&Btn(0), 5);
        layout->addWidget(&label);
        SetTabIndex(&label, 6);
    }
    bool enter(int index) override {
        entered += index;
        return mayGoOn;
    }

    using EntryForm::Btn;
    using EntryForm::ebox;
    ComboBox& combo = *new ComboBox;
    Label& label = *new Label;
    QList<int> entered;
    bool mayGoOn = true;
};

class FieldWalk : public ScreenTest {
 protected:
    FieldWalk() { desk.Show(); }
    QString after(void (*step)(Form&, int), int from) {
        step(desk, from);
        return clerk.focusedName();
    }
    Desk desk;
};

TEST_F(FieldWalk, GoesRoundInTabOrder) {
    const QStringList order = {u"ebox(0)"_s, u"ebox(1)"_s, u"ebox(2)"_s,
                               u"ebox(3)"_s, u"Combo1"_s,  u"Btn(0)"_s};
    for (int from = 0; from < 6; ++from) {
        EXPECT_EQ(after(NextField, from), order[(from + 1) % 6]) << from;
        EXPECT_EQ(after(PrevField, from), order[std::max(from - 1, 0)]) << from;
    }
    EXPECT_EQ(after(NextField, 40), u"ebox(0)"_s);
}

TEST_F(FieldWalk, PassesOverInvisibleControlsAndFromAGapToTheFirstField) {
    desk.ebox(1).hide();
    desk.ebox(2).hide();
    EXPECT_EQ(after(NextField, 0), u"ebox(3)"_s);
    EXPECT_EQ(after(PrevField, 3), u"ebox(0)"_s);
    desk.Btn(0).hide();
    EXPECT_EQ(after(NextField, 4), u"ebox(0)"_s);
    SetTabIndex(&desk.ebox(3), 30);  // nobody holds 3 now
    EXPECT_EQ(after(PrevField, 4), u"ebox(0)"_s);
    desk.ebox(1).show();
    desk.ebox(0).hide();
    SetFocus(&desk.ebox(1));
    EXPECT_EQ(after(PrevField, 1), u"ebox(1)"_s) << "with no first field it does not hang";
}

TEST_F(FieldWalk, KeysWalkAndTypingReplaces) {
    desk.ebox(1).SetText(u"old"_s);
    FocusSelect(desk.ebox(0));
    clerk.fill(u"a"_s);
    clerk.type(u"new"_s);
    EXPECT_EQ(desk.ebox(1).Text(), u"new"_s);
    clerk.tab();
    EXPECT_EQ(clerk.focusedName(), u"ebox(2)"_s);
    clerk.shiftTab();
    clerk.up();
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s);
    clerk.shiftTab();
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s);
    clerk.down();
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s);
    EXPECT_EQ(desk.entered, (QList<int>{0, 1})) << "only Enter and Tab ask the field";

    desk.mayGoOn = false;
    clerk.enter();
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_s);
}

TEST_F(FieldWalk, LeavingAFieldCutsItsText) {
    for (int i = 0; i < 4; ++i) {
        desk.ebox(i).SetMaxLength(4);
        desk.ebox(i).SetText(u"あいう"_s);
    }
    FocusSelect(desk.ebox(0));
    clerk.enter();
    clerk.up();
    EXPECT_EQ(desk.ebox(0).Text(), u"あい"_s);
    EXPECT_EQ(desk.ebox(1).Text(), u"あい"_s);
    clerk.click(desk.ebox(2));
    clerk.click(desk.ebox(3));
    EXPECT_EQ(desk.ebox(2).Text(), u"あい"_s);
    EXPECT_EQ(desk.ebox(3).Text(), u"あいう"_s) << "still being typed in";
}

}  // namespace
}  // namespace akarix
