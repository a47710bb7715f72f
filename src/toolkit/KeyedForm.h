#pragma once

#include "platform/dao/Recordset.h"
#include "toolkit/EntryForm.h"

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

    /// The buttons in the order of the walk, the walkers behind them at the right where setWalk has been
    /// called.
    /// \param place where the bar stands; below everything else where none is given.
    void addBar(std::initializer_list<BarButton> buttons, QVBoxLayout* place = nullptr);
    /// The statements whose first row is the neighbour; %1 stands for the code.
    void setWalk(const QString& left, const QString& right);

    /// What the screen consists of, from the top; the buttons come last.
    QVBoxLayout& body() { return *body_; }

    /// The code as it goes into a statement.
    virtual QString codeText() const;
    void clear();

    /// The code a cleared screen proposes.
    virtual QString proposedCode() = 0;
    /// Fills what an empty screen holds from the start, after every clearing.
    virtual void showDefaults() {}
    /// A walker came to this row.
    virtual void showRow(Recordset& row) = 0;

    static constexpr int kCode = 0;

 private:
    void addWalker(QHBoxLayout& row, const QString& arrow, const QString& name, QString KeyedForm::*sql);

    QVBoxLayout* body_;
    QString left_;
    QString right_;
};

}  // namespace akarix
