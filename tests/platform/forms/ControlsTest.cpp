#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QVBoxLayout>

#include "platform/forms/Choice.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// A form with two text boxes around whatever control is under test.
class Controls : public ScreenTest {
 protected:
    template <class T>
    T& show(T* control) {
        for (QWidget* widget :
             {static_cast<QWidget*>(&first), static_cast<QWidget*>(control), static_cast<QWidget*>(&last)}) {
            SetTabIndex(widget, form.takeTabIndex());
            line->addWidget(widget);
        }
        form.Show();
        SetFocus(control);
        clerk.settle();
        return *control;
    }

    void listen(TextBox& box) {
        form.on(&box, &TextBox::KeyDown, [this](KeyEvent& event) {
            seen << QString("%1/%2").arg(event.KeyCode).arg(event.Shift);
            if (event.KeyCode == key::Escape) event.KeyCode = 0;
        });
    }
    void input(QWidget& box, const QString& preedit, const QString& commit) {
        QInputMethodEvent event(preedit, {});
        if (!commit.isEmpty()) event.setCommitString(commit);
        QApplication::sendEvent(&box, &event);
    }

    Form form{"Test_frm", ""};
    QVBoxLayout* line = new QVBoxLayout(&form);
    TextBox& first = Named(new TextBox, "first");
    TextBox& last = Named(new TextBox, "last");
    QStringList seen;
};

TEST_F(Controls, KeysReachKeyDownUnderTheirClassicCodes) {
    TextBox& box = show(new TextBox);
    listen(box);
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        const char* seen;
    } keys[] = {
        {Qt::Key_Enter, Qt::KeypadModifier, "13/0"},
        {Qt::Key_Backtab, Qt::ShiftModifier, "9/1"},
        {Qt::Key_Down, Qt::ControlModifier, "40/2"},
        {Qt::Key_Escape, {}, "27/0"},
    };
    for (const auto& k : keys) {
        seen.clear();
        clerk.press(k.key, k.modifiers);
        EXPECT_EQ(seen, QStringList(k.seen));
        EXPECT_EQ(clerk.focused(), &box);
    }
}

TEST_F(Controls, TheEnterOfACompositionIsNotAnEnter) {
    TextBox& box = show(new TextBox);
    listen(box);
    input(box, "かな", {});
    clerk.enter();
    clerk.down();
    EXPECT_TRUE(seen.isEmpty());
    input(box, {}, "仮名");
    clerk.enter();  // the one that committed, handed on by the input method
    EXPECT_TRUE(seen.isEmpty());
    clerk.enter();
    EXPECT_EQ(seen, QStringList("13/0"));
    EXPECT_EQ(box.Text(), u"仮名");

    input(box, {}, "a");  // committed without composing: no Enter belongs to it
    clerk.enter();
    EXPECT_EQ(seen.size(), 2);
}

TEST_F(Controls, ReadingFieldsHoldHalfWidthKatakana) {
    TextBox& box = show(new TextBox);
    box.SetIMEMode(ImeMode::KatakanaHalf);
    const struct {
        const char* committed;
        const char* text;
    } cases[] = {{"ガス", "ｶﾞｽ"}, {"やまだ", "ﾔﾏﾀﾞ"}, {"ＡＢ１", "AB1"}, {"山", "山"}, {"ｱ", "ｱ"}};
    for (const auto& c : cases) {
        box.SetText({});
        input(box, QString::fromUtf8(c.committed), {});
        EXPECT_EQ(box.Text(), u"");  // nothing is touched while composing
        input(box, {}, QString::fromUtf8(c.committed));
        EXPECT_EQ(box.Text(), QString::fromUtf8(c.text));
    }
    box.SetText("ｱガ");  // the program's own text stays
    EXPECT_EQ(box.Text(), "ｱガ");
    box.SetText("ｱｲ");
    box.setCursorPosition(1);
    box.insert("ガ");  // as a paste does
    EXPECT_EQ(box.Text(), "ｱｶﾞｲ");
    EXPECT_EQ(box.cursorPosition(), 3);
}

TEST_F(Controls, InputMethodIsOffForNumbers) {
    TextBox& box = show(new TextBox);
    box.SetIMEMode(ImeMode::Off);
    EXPECT_THROW(clerk.type("あ"), std::runtime_error);
    box.insert("－２２２．５円");  // as a paste does
    EXPECT_EQ(box.Text(), u"-222.5円");
    box.SetIMEMode(ImeMode::NoControl);
    box.SetText({});
    clerk.type("あ１");
    EXPECT_EQ(box.Text(), u"あ１");
}

TEST_F(Controls, ABoxTakesNoMoreThanItsBytes) {
    TextBox& box = show(new TextBox);
    box.SetMaxLength(5);
    clerk.type("1234567");
    EXPECT_EQ(box.Text(), u"12345");
    box.setCursorPosition(1);
    clerk.type("9");
    EXPECT_EQ(box.Text(), u"12345");
    box.setSelection(1, 2);
    clerk.type("9");  // in the place of two others
    EXPECT_EQ(box.Text(), u"1945");

    box.SetText("1145");
    box.setCursorPosition(1);
    box.insert("1あ");  // as a paste does
    EXPECT_EQ(box.Text(), u"11145") << "of what is pasted the beginning";
    EXPECT_EQ(box.cursorPosition(), 2);

    box.SetText("12");
    input(box, "漢字入", {});
    EXPECT_EQ(box.Text(), u"12");
    input(box, {}, "漢字入");
    EXPECT_EQ(box.Text(), u"12漢") << "two bytes each, and the composition was left alone";

    box.SetText("1234567");  // the program's own text is longer already
    clerk.type("8");
    EXPECT_EQ(box.Text(), u"1234567");
    clerk.press(Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), u"123456");
}

TEST_F(Controls, FocusEventsFollowTheFieldsNotTheWindows) {
    TextBox& box = show(new TextBox);
    form.on(&box, &TextBox::GotFocus, [this] { seen << "got"; });
    form.on(&box, &TextBox::LostFocus, [this] { seen << "lost"; });
    clerk.tab();
    clerk.shiftTab();
    EXPECT_EQ(seen.join(u' '), u"lost got");
    Form other("Other", "");
    other.Show();
    clerk.settle();
    clerk.bringToFront("Test_frm");
    EXPECT_EQ(seen.size(), 2);
}

TEST_F(Controls, ButtonsClickByEnterAndSpaceAndWalkByArrows) {
    auto& button = show(new CommandButton("b"));
    int clicks = 0;
    form.on(&button, &CommandButton::Click, [&] { ++clicks; });
    clerk.enter();
    clerk.press(Qt::Key_Enter, Qt::KeypadModifier);
    clerk.press(Qt::Key_Space);
    EXPECT_EQ(clicks, 3);
    for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
        QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
        QApplication::sendEvent(&button, &held);
        QTest::keyRelease(&button, static_cast<Qt::Key>(key));
        EXPECT_EQ(clicks, 3) << "held since a field before";
    }
    clerk.up();
    EXPECT_EQ(clerk.focusedName(), u"first");
    SetFocus(&button);
    clerk.press(Qt::Key_Right);
    EXPECT_EQ(clerk.focusedName(), u"last");
}

TEST_F(Controls, ADoubleClickIsOnePressOfWhateverIsPressed) {
    auto& button = show(new CommandButton("b"));
    auto* tick = new CheckBox("c");
    tick->setMaximumWidth(tick->sizeHint().width());
    line->addWidget(tick);
    form.on(&button, &CommandButton::Click, [this] { seen << "button"; });
    form.on(tick, &CheckBox::Click, [this] { seen << "tick"; });
    for (QWidget* control : {static_cast<QWidget*>(&button), static_cast<QWidget*>(tick)}) {
        clerk.doubleClick(*control);
        clerk.click(*control);
    }
    EXPECT_EQ(seen.join(u' '), u"button button tick tick");

    last.SetText("word");  // in a text it marks the word, as everywhere
    clerk.doubleClick(last);
    EXPECT_EQ(last.selectedText(), u"word");
}

TEST_F(Controls, ComboKeepsItsSelectionWhileRowsAreAdded) {
    auto& combo = show(new ComboBox);
    form.on(&combo, &ComboBox::Click, [&] { seen << QString::number(combo.ListIndex()); });
    for (int i = 0; i < 2; ++i)
        combo.AddItem(QString::number(i), i * 10);
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.SetListIndex(0);
    clerk.down();
    combo.SetListIndex(-1);
    EXPECT_EQ(seen.join(u' '), u"0 1");
    EXPECT_THROW(combo.ItemData(-1), RuntimeError);
    EXPECT_THROW(combo.SetListIndex(2), RuntimeError);
}

TEST_F(Controls, EnterLeavesAnOptionForTheNextControl) {
    auto* frame = new Frame("枠");
    auto* inside = new QVBoxLayout(frame);
    auto* one = new OptionButton("1");
    auto* two = new OptionButton("2");
    inside->addWidget(one);
    inside->addWidget(two);
    show(frame);
    form.on(two, &OptionButton::Click, [this] { seen << "two"; });
    one->SetValue(true);
    SetFocus(one);
    clerk.down();
    EXPECT_TRUE(two->Value());
    EXPECT_EQ(seen, QStringList("two"));
    clerk.enter();
    EXPECT_EQ(clerk.focusedName(), u"last");
    EXPECT_TRUE(two->Value());
}

TEST_F(Controls, APictureClicksWhereItIsLetGo) {
    auto& picture = show(new Image);
    picture.resize(20, 20);
    form.on(&picture, &Image::MouseDown, [&] { seen << "down"; });
    form.on(&picture, &Image::MouseUp, [&] { seen << "up"; });
    form.on(&picture, &Image::Click, [&] { seen << "click"; });
    clerk.doubleClick(picture);
    EXPECT_EQ(seen.join(u' '), u"down up click");
    QTest::mousePress(&picture, Qt::LeftButton);
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(seen.join(u' '), u"down up click down up");
}

}  // namespace
}  // namespace akarix
