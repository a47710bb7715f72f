#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <type_traits>
#include <utility>

#include "platform/forms/Control.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/Guard.h"
#include "platform/forms/KeyEvent.h"

class QEventLoop;

namespace akarix {

/// A screen. Built in code by its constructor; shown modeless or modally; closed by hiding (it stays loaded,
/// with what is on it) or by unloading (the next Instance() builds it anew). It opens within its screen: what
/// does not fit moves closer together, and scrolls where that is not enough.
///
/// On every form F1 asks for help, and Ctrl+S presses the first button of the walk that keeps the work.
class Form : public QWidget {
    Q_OBJECT

 public:
    /// \param name the system's own name of the form, e.g. "MstDeal_frm"; becomes the object name.
    Form(const QString& name, const QString& caption);

    QString Caption() const { return windowTitle(); }
    void SetCaption(const QString& caption) { setWindowTitle(caption); }

    /// Shows the form, brings it to the front and gives it the keyboard.
    void Show();
    /// Shows it and returns when it has been hidden or unloaded.
    void ShowModal();
    void Hide();
    /// Runs QueryUnload, then takes the form away. The object lives until the action under way has ended.
    void Unload();

    /// The next free place of the walk, counted from 0 in the order of asking.
    int takeTabIndex();

    /// All controls of the form in the order they were made (the classic Controls collection).
    QList<QWidget*> Controls() const;
    /// What was typed or chosen so far is no work any more: the screen has been emptied.
    void ForgetEdits() { edited_ = false; }

    /// Attaches a handler: run inside an action, an escaping error shown in the run time's box.
    template <class Sender, class Signal, class Handler>
    void on(Sender* sender, Signal signal, Handler handler) {
        QObject::connect(sender, signal, this, [handler = std::move(handler)](auto&&... arguments) mutable {
            RunGuarded([&] { call(handler, arguments...); });
        });
    }
    /// The same for every control of an array; the handler gets the index first.
    template <class T, class Signal, class Handler>
    void on(const ControlArray<T>& array, Signal signal, Handler handler) {
        for (const auto& [index, control] : array) {
            const int i = index;
            QObject::connect(control, signal, this, [handler, i](auto&&... arguments) mutable {
                RunGuarded([&] { handler(i, arguments...); });
            });
        }
    }

    /// The one instance of a form class, built on first use and after an unload.
    template <class F>
    static F& Instance() {
        static QPointer<QWidget> instance;
        if (instance.isNull() || static_cast<Form*>(instance.data())->unloaded_) instance = adopt(new F);
        return *static_cast<F*>(instance.data());
    }
    /// What F1 does; nothing until it has been said.
    static void SetHelp(std::function<void(const Form& asking)> help);
    /// The window the operator works at; null when no window of the program has the keyboard.
    static QWidget* PresentWindow();
    /// Takes every such instance away at once, shown or hidden, without asking it.
    static void DropInstances();

 protected:
    /// Before the form goes away. Setting cancel keeps it; closing the window asks here too.
    virtual void QueryUnload(bool& cancel);
    /// Whether the screen holds something that Ctrl+S may keep: something was typed or chosen since it was
    /// emptied.
    virtual bool holdsWork() const { return edited_; }
    /// A press on the form itself, not on a control.
    virtual void MouseDown(int shift);

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

 private:
    /// A handler may leave out what the signal tells.
    template <class Handler, class... Arguments>
    static void call(Handler& handler, Arguments&... arguments) {
        if constexpr (std::is_invocable_v<Handler&, Arguments&...>)
            handler(arguments...);
        else
            handler();
    }

    static Form* adopt(Form* instance);
    void addKeys();
    void watchEdits();
    void pressKeep();
    void present(QWidget* owner);
    void arrange();
    void place(QWidget* owner);
    void fit(QSize room);
    QSize wantedSize() const;

    QEventLoop* modalLoop_ = nullptr;
    QSize hint_;  ///< what the contents asked for when the size was last taken from them
    int nextTabIndex_ = 0;
    bool edited_ = false;
    bool arranged_ = false;
    bool placed_ = false;
    bool ownSize_ = false;
    bool unloaded_ = false;
};

/// Opens a screen the way the menu does: its one instance is shown and its init run.
template <class F>
void OpenScreen() {
    F& form = Form::Instance<F>();
    form.Show();
    form.init();
}

}  // namespace akarix
