#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <vector>

#include "platform/forms/FieldLayout.h"
#include "platform/runtime/Date.h"
#include "platform/runtime/Literals.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"

namespace akarix {

/// The picture beside a code that opens the lookup of a table, and the label that shows the code's name.
struct CodeLookup {
    int picture = 0;  ///< of F6
    QString table;
    QString nameLabel;
    int nameBytes = 30;
    std::optional<int> goesOnAt = {};  ///< where Enter is pressed behind a pick; none: at the code
};

/// A screen whose fields are walked by the keyboard. Enter and Tab go on, Up and Shift+Tab go back; whichever
/// way a field is left, its text is cut to the field's bytes.
///
/// What a screen is made of is made here and wired as it is made: a screen says its fields, what a button
/// does, and by `enter` what Enter asks of a field.
class EntryForm : public Form {
 public:
    using Form::Form;

 protected:
    using enum ButtonWeight;

    struct BarButton {
        int index;  ///< of Btn
        QString caption;
        std::function<void()> press;
        ButtonWeight weight = Plain;
    };

    /// What Enter asks of ebox(index) before the walk goes on; False when it has moved the focus itself.
    virtual bool enter(int index);
    /// Does what Enter does in ebox(index), wherever the focus is.
    void pressEnter(int index);

    /// Makes ebox(index).
    TextBox& addBox(int index, ImeMode ime = ImeMode::Off);
    /// The same for an amount, which stands at the right.
    TextBox& addAmount(int index);
    /// Fields besides ebox, of which Enter asks nothing. In a list the arrows choose, so that Shift+Tab alone
    /// goes back.
    TextBox* newBox(ImeMode ime = ImeMode::Off);
    ComboBox* newList();
    /// A year and a month with what they are of.
    FieldLine addMonth(FieldLine line, int year, int month, const QString& note);
    void putMonth(int year, int month, Date date);
    /// A code with its lookup and its name, which Enter shows. \param shownBytes the width, where it differs.
    FieldLine addCode(FieldLine line, int index, const CodeLookup& lookup, int bytes = kLongKeyBytes,
                      int shownBytes = 0);
    /// A lookup picture: `pick` tells a code, the empty text for none; `take` gets it.
    Image& addLookup(int picture, std::function<QString()> pick,
                     std::function<void(const QString& code)> take);
    /// The same, into ebox(index) and Enter pressed there.
    Image& addLookup(int picture, std::function<QString()> pick, int index);
    Image& addLookup(int picture, const QString& table, int index);

    /// A label that shows a name; emptied with the fields.
    Label& addName(const QString& name);
    /// Shows the name of the code in ebox(index).
    void showName(int index);
    /// The name shown beside ebox(index).
    QString nameOf(int index) const;

    /// A button at the next place of the walk.
    CommandButton* newButton(const QString& caption, std::function<void()> press,
                             ButtonWeight weight = Plain);
    /// Buttons in the order of the walk, at the end of a row.
    void addButtons(QBoxLayout& row, std::initializer_list<BarButton> buttons);
    /// A row of them at the right.
    QHBoxLayout* buttonBar(std::initializer_list<BarButton> buttons);
    /// For a screen whose walk is not the order of the making.
    static void orderWalk(const std::vector<QWidget*>& controls);

    /// Every field and name empty.
    void emptyFields();
    /// Tells what a field lacks and goes there; gives False.
    bool refuse(const QString& message, int index);

    /// Keeps a held or repeated Tab from running past the last button into the box whose Enter loads, which
    /// drops what was typed: the walk goes round to the field behind it.
    void goRoundPast(TextBox& loadingBox) { loadingBox_ = &loadingBox; }
    bool focusNextPrevChild(bool next) override;

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};

 private:
    struct CodeName {
        QString table;
        Label* label;
    };
    void wireKeys(TextBox& box, const std::function<void()>& goOn);
    void leave(TextBox& box);

    std::vector<Label*> names_;
    std::map<int, CodeName> codes_;  ///< by index of ebox
    TextBox* loadingBox_ = nullptr;
};

}  // namespace akarix
