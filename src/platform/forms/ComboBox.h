#pragma once

#include <QComboBox>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// A drop-down list whose rows carry a number (ItemData).
class ComboBox : public QComboBox {
    Q_OBJECT

 public:
    explicit ComboBox(QWidget* parent = nullptr);

    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);
    void AddItem(const QString& text, int itemData = 0);
    void RemoveItem(int index) { removeItem(index); }
    int ItemData(int index) const;
    QString Text() const { return currentText(); }

 signals:
    void KeyDown(akarix::KeyEvent& event);
    void GotFocus();
    void LostFocus();
    /// The operator or the program chose a row.
    void Click();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace akarix
