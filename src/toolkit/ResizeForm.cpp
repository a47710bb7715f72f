#include "toolkit/ResizeForm.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QWindow>

#include "platform/forms/Form.h"

namespace akarix {

namespace {

// The exact place and font size, kept beside the rounded ones so that many small steps do not drift.
constexpr const char* kExactPlace = "exactPlace";
constexpr const char* kExactFont = "exactFont";

bool FontFollows(const QWidget* control) {
    return qobject_cast<const QLineEdit*>(control) != nullptr ||
           qobject_cast<const QComboBox*>(control) != nullptr ||
           qobject_cast<const QPushButton*>(control) != nullptr ||
           qobject_cast<const QGroupBox*>(control) != nullptr ||
           qobject_cast<const QTableView*>(control) != nullptr;
}

QRectF ExactPlace(const QWidget* control) {
    const QVariant kept = control->property(kExactPlace);
    // A control that something else has moved meanwhile starts from where it stands.
    if (kept.isValid() && kept.toRectF().toRect() == control->geometry()) return kept.toRectF();
    return control->geometry();
}

double ExactFont(const QWidget* control) {
    const QVariant kept = control->property(kExactFont);
    return kept.isValid() ? kept.toDouble() : control->fontInfo().pixelSize();
}

/// A desk may tell the new size of a maximised window before it says that it is maximised.
bool Fills(const QWidget& form, const QRect& area) {
    if (form.isMaximized() || form.isFullScreen()) return true;
    const QMargins frame = form.windowHandle() != nullptr ? form.windowHandle()->frameMargins() : QMargins();
    const QSize left = area.marginsRemoved(frame).size();
    return form.width() >= left.width() && form.height() >= left.height();
}

}  // namespace

void ResizeForm(Form& form, QSizeF previous) {
    if (form.isMinimized() || previous.isEmpty()) return;
    const double across = form.width() / previous.width();
    const double down = form.height() / previous.height();
    for (QWidget* control : form.Controls()) {
        const QRectF was = ExactPlace(control);
        const QRectF now(was.left() * across, was.top() * down, was.width() * across, was.height() * down);
        control->setProperty(kExactPlace, now);
        control->setGeometry(now.toRect());
        if (FontFollows(control)) {
            const double size = ExactFont(control) * across;
            control->setProperty(kExactFont, size);
            QFont font = control->font();
            font.setPixelSize(qMax(1, qRound(size)));
            control->setFont(font);
        }
    }
    const QRect area = form.screen()->availableGeometry();
    if (Fills(form, area)) return;
    form.move(area.left() + (area.width() - form.frameGeometry().width()) / 2,
              area.top() + (area.height() - form.frameGeometry().height()) / 2);
}

}  // namespace akarix
