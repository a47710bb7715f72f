#pragma once

#include <QPushButton>

namespace akarix {

/// What a press leads to. The look sets apart what goes on with the work and what takes data away.
enum class ButtonWeight {
    Plain,
    Confirms,  ///< closes a dialog with its answer
    Keeps,     ///< stores the work; Ctrl+S presses the first of them
    Removes
};

/// A button: pressed by a click, by Space and by Enter (see GuardPresses). The arrow keys walk to its
/// neighbours in tab order.
class CommandButton : public QPushButton {
    Q_OBJECT

 public:
    explicit CommandButton(const QString& caption = {}, QWidget* parent = nullptr,
                           ButtonWeight weight = ButtonWeight::Plain);

    QString Caption() const { return text(); }
    void SetCaption(const QString& caption) { setText(caption); }
    ButtonWeight weight() const { return weight_; }

 signals:
    void Click();

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    ButtonWeight weight_;
};

}  // namespace akarix
