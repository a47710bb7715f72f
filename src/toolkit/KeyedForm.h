#pragma once

#include <map>
#include <vector>

#include "platform/dao/Recordset.h"
#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

class QHBoxLayout;
class QVBoxLayout;

namespace akarix {

/// A screen that keeps what lies in the store under the code or number in ebox(0), with its buttons below
/// and mostly the walkers "←" and "→" to the neighbours. A cleared screen stands ready for the next free
/// code.
class KeyedForm : public EntryForm {
 public:
    virtual void init();

 protected:
    KeyedForm(const QString& name, const QString& caption);

    struct BarButton {
        int index;  ///< of Btn
        QString caption;
    };
    /// The buttons in the order of the walk, the walkers behind them at the right where setWalk has been
    /// called. The screen wires Btn.
    /// \param place where the bar stands; below everything else where none is given.
    void addBar(const std::vector<BarButton>& buttons, QVBoxLayout* place = nullptr);
    /// The statements whose first row is the neighbour; %1 stands for the code.
    void setWalk(const QString& left, const QString& right);

    /// What the screen consists of, from the top; the buttons come last.
    QVBoxLayout& body() { return *body_; }
    /// A label that shows a name; emptied when the screen is cleared.
    Label& addName(const QString& name);
    Label& nameLabel(const QString& name) const;

    /// The code as it goes into a statement.
    virtual QString codeText() const;
    void clear();
    /// Tells what a field lacks and goes there; gives False.
    bool refuse(const QString& message, int index);

    /// The code a cleared screen proposes.
    virtual QString proposedCode() = 0;
    /// Fills what an empty screen holds from the start, after every clearing.
    virtual void showDefaults() {}
    /// A walker came to this row.
    virtual void showRow(Recordset& row) = 0;

    static constexpr int kCode = 0;
    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};

 private:
    void walk(const QString& sql);

    QVBoxLayout* body_;
    QHBoxLayout* buttonRow_;
    std::map<QString, Label*> names_;
    QString left_;
    QString right_;
};

}  // namespace akarix
