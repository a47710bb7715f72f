#pragma once

#include <QComboBox>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// A drop-down list whose rows carry a number (ItemData). The arrow keys choose, Enter and Tab belong to
/// KeyDown while somebody listens.
class ComboBox : public QComboBox {
    Q_OBJECT

 public:
    explicit ComboBox(QWidget* parent = nullptr);

    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);  ///< -1 selects nothing; raises 380 outside the list
    /// Adds a row at the end; the selection stays as it was.
    void AddItem(const QString& text, int itemData = 0);
    int ItemData(int index) const;  ///< raises 381 outside the list

 signals:
    void KeyDown(akarix::KeyEvent& event);
    void LostFocus();
    /// The operator or the program chose a row.
    void Click();

 protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace akarix
