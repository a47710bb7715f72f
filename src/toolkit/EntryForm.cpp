#include "toolkit/EntryForm.h"

#include "dialogs/ShowAlert.h"
#include "platform/runtime/Calendar.h"
#include "store/Lookup.h"
#include "toolkit/Lookups.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

// ---- the walk

bool EntryForm::enter(int /*index*/) {
    return true;
}

void EntryForm::pressEnter(int index) {
    if (const auto code = codes_.find(index); code != codes_.end()) showName(index);
    if (enter(index)) leave(ebox(index));
}

void EntryForm::leave(TextBox& box) {
    FitMaxLength(box);
    NextField(*this, TabIndex(&box));
}

void EntryForm::wireKeys(TextBox& box, const std::function<void()>& goOn) {
    on(&box, &TextBox::KeyDown, [this, &box, goOn](KeyEvent& event) {
        switch (MapEditKey(event.KeyCode, event.Shift)) {
            case key::Return:
                event.KeyCode = 0;
                goOn();
                break;
            case key::Up:
                event.KeyCode = 0;
                FitMaxLength(box);
                PrevField(*this, TabIndex(&box));
                break;
            default:
                break;
        }
    });
    on(&box, &TextBox::LostFocus, [&box] { FitMaxLength(box); });
}

bool EntryForm::focusNextPrevChild(bool next) {
    const bool moved = Form::focusNextPrevChild(next);
    if (moved && next && loadingBox_ != nullptr && focusWidget() == loadingBox_)
        NextField(*this, TabIndex(loadingBox_));
    return moved;
}

void EntryForm::orderWalk(const std::vector<QWidget*>& controls) {
    for (std::size_t place = 0; place < controls.size(); ++place)
        SetTabIndex(controls[place], static_cast<int>(place));
}

// ---- fields

TextBox& EntryForm::addBox(int index, ImeMode ime) {
    TextBox& box = ebox.add(index, new TextBox);
    box.SetIMEMode(ime);
    wireKeys(box, [this, index] { pressEnter(index); });
    return box;
}

TextBox& EntryForm::addAmount(int index) {
    TextBox& box = addBox(index);
    box.setAlignment(Qt::AlignRight);
    return box;
}

TextBox* EntryForm::newBox(ImeMode ime) {
    auto* box = new TextBox;
    box->SetIMEMode(ime);
    wireKeys(*box, [this, box] { leave(*box); });
    return box;
}

ComboBox* EntryForm::newList() {
    auto* list = new ComboBox;
    on(list, &ComboBox::KeyDown, [this, list](KeyEvent& event) {
        if (event.KeyCode != key::Return && event.KeyCode != key::Tab) return;  // Up chooses here
        if (MapEditKey(event.KeyCode, event.Shift) == key::Return)
            NextField(*this, TabIndex(list));
        else
            PrevField(*this, TabIndex(list));
        event.KeyCode = 0;
    });
    return list;
}

FieldLine EntryForm::addMonth(FieldLine line, int year, int month, const QString& note) {
    constexpr int kYearBytes = 4;
    constexpr int kMonthBytes = 2;
    return line.text(addBox(year), kYearBytes).note(u"年"_s).text(addBox(month), kMonthBytes).note(note);
}

void EntryForm::putMonth(int year, int month, Date date) {
    ebox(year).SetText(NumStr(Year(date)));
    ebox(month).SetText(NumStr(Month(date)));
}

void EntryForm::emptyFields() {
    ClearControls(*this);
    for (Label* name : names_)
        name->SetCaption({});
}

bool EntryForm::refuse(const QString& message, int index) {
    ShowAlert(message);
    FocusSelect(ebox(index));
    return false;
}

// ---- codes and their names

FieldLine EntryForm::addCode(FieldLine line, int index, const CodeLookup& lookup, int bytes, int shownBytes) {
    const auto pick = [table = lookup.table] { return PickCode(table); };
    const auto take = [this, index, goesOnAt = lookup.goesOnAt.value_or(index)](const QString& code) {
        ebox(index).SetText(code);
        pressEnter(goesOnAt);
    };
    line.text(addBox(index), bytes, shownBytes).lookup(addLookup(lookup.picture, pick, take));
    Label& name = addName(lookup.nameLabel);
    codes_[index] = {lookup.table, &name};
    return line.name(name, lookup.nameBytes);
}

Image& EntryForm::addLookup(int picture, std::function<QString()> pick,
                            std::function<void(const QString& code)> take) {
    Image& image = F6.add(picture, new Image);
    on(&image, &Image::MouseDown, [&image] { image.SetBorderStyle(1); });
    on(&image, &Image::MouseUp, [&image] { image.SetBorderStyle(0); });
    on(&image, &Image::Click, [pick = std::move(pick), take = std::move(take)] {
        const QString code = pick();
        if (!code.isEmpty()) take(code);
    });
    return image;
}

Image& EntryForm::addLookup(int picture, std::function<QString()> pick, int index) {
    return addLookup(picture, std::move(pick), [this, index](const QString& code) {
        ebox(index).SetText(code);
        pressEnter(index);
    });
}

Image& EntryForm::addLookup(int picture, const QString& table, int index) {
    return addLookup(
        picture, [table] { return PickCode(table); }, index);
}

Label& EntryForm::addName(const QString& name) {
    names_.push_back(&Named(new Label({}, this), name));
    return *names_.back();
}

void EntryForm::showName(int index) {
    const CodeName& code = codes_.at(index);
    code.label->SetCaption(GetName(code.table, NumVal(ebox(index).Text())));
}

QString EntryForm::nameOf(int index) const {
    return codes_.at(index).label->Caption();
}

// ---- buttons

CommandButton* EntryForm::newButton(const QString& caption, std::function<void()> press,
                                    ButtonWeight weight) {
    auto* button = new CommandButton(caption, nullptr, weight);
    JoinWalk(*this, *button);
    on(button, &CommandButton::Click, std::move(press));
    return button;
}

void EntryForm::addButtons(QBoxLayout& row, std::initializer_list<BarButton> buttons) {
    for (const BarButton& button : buttons)
        row.addWidget(&Btn.add(button.index, newButton(button.caption, button.press, button.weight)));
}

QHBoxLayout* EntryForm::buttonBar(std::initializer_list<BarButton> buttons) {
    auto* bar = new QHBoxLayout;
    bar->addStretch();
    addButtons(*bar, buttons);
    return bar;
}

}  // namespace akarix
