#include "platform/forms/ScreenStyle.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include "platform/forms/Colours.h"
#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kFieldPadding = 4;  // above and below a field's text

void DrawBox(QPainter* painter, const QRect& rect, const QColor& fill, const QColor& line, qreal width) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(line, width));
    painter->setBrush(fill);
    const qreal inset = width / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), 2.5, 2.5);
    painter->restore();
}

/// A line through points given from the middle of the rectangle.
void DrawStroke(QPainter* painter, const QRect& rect, QPolygonF points, const QColor& colour, qreal width) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, width));
    points.translate(QRectF(rect).center());
    painter->drawPolyline(points);
    painter->restore();
}

void DrawField(const QStyleOption* option, QPainter* painter) {
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const bool focused = enabled && option->state.testFlag(QStyle::State_HasFocus);
    QColor fill = enabled ? option->palette.color(QPalette::Base) : colours::kWindow;
    if (focused && !option->state.testFlag(QStyle::State_ReadOnly)) fill = colours::kFocusTint;
    DrawBox(painter, option->rect, fill, focused ? colours::kAccent : colours::kBorder, focused ? 2 : 1);
}

/// Filled, as a line of one pixel is lost here and there under a scale that is no whole number.
void DrawEdges(const QRect& rect, QPainter* painter) {
    painter->fillRect(rect.x(), rect.y(), rect.width(), 1, colours::kBorder);
    painter->fillRect(rect.x(), rect.bottom(), rect.width(), 1, colours::kBorder);
    painter->fillRect(rect.x(), rect.y(), 1, rect.height(), colours::kBorder);
    painter->fillRect(rect.right(), rect.y(), 1, rect.height(), colours::kBorder);
}

struct ButtonColours {
    QColor fill = colours::kButton;
    QColor line = colours::kBorder;
    QColor ink = colours::kInk;
    QColor focusLine = colours::kAccent;
};

ButtonColours ColoursOf(const QWidget* widget) {
    const auto* button = qobject_cast<const CommandButton*>(widget);
    switch (button != nullptr ? button->weight() : ButtonWeight::Plain) {
        case ButtonWeight::Confirms:
        case ButtonWeight::Keeps:
            return {colours::kRowTint, colours::kAccent, colours::kAccentInk, colours::kAccent};
        case ButtonWeight::Removes:
            return {colours::kButton, colours::kDangerLine, colours::kDanger, colours::kDanger};
        case ButtonWeight::Plain:
            break;
    }
    return {};
}

void DrawButton(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    const QStyle::State state = option->state;
    if (!state.testFlag(QStyle::State_Enabled)) {
        DrawBox(painter, option->rect, colours::kWindow, colours::kLine, 1);
        return;
    }
    const ButtonColours own = ColoursOf(widget);
    const bool focused = state.testFlag(QStyle::State_HasFocus);
    QColor fill = own.fill;
    if (state.testFlag(QStyle::State_MouseOver)) fill = colours::kButtonHover;
    if (focused) fill = colours::kFocusTint;
    if (state & (QStyle::State_Sunken | QStyle::State_On)) fill = colours::kButtonDown;
    DrawBox(painter, option->rect, fill, focused ? own.focusLine : own.line, focused ? 2 : 1);
}

/// The title stands above the card.
void DrawGroup(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    const auto* group = qobject_cast<const QGroupBox*>(widget);
    const bool titled = group != nullptr && !group->title().isEmpty();
    const int above = titled ? option->fontMetrics.height() + 4 : 0;
    DrawBox(painter, option->rect.adjusted(0, above, 0, 0), colours::kCard, colours::kLine, 1);
}

/// The square or the disc of a choice; the ready-made ones fade into the window.
void DrawMark(const QStyleOption* option, QPainter* painter, bool isRound) {
    const bool enabled = option->state.testFlag(QStyle::State_Enabled);
    const bool chosen = option->state.testFlag(QStyle::State_On);
    const QColor full = enabled ? colours::kAccent : colours::kFaint;
    QRect box(0, 0, 14, 14);
    box.moveCenter(option->rect.center());
    if (isRound) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(chosen ? full : colours::kMarkLine, chosen ? 4.5 : 1.2));
        painter->setBrush(enabled ? QColor(Qt::white) : colours::kWindow);
        const qreal inset = chosen ? 2.25 : 0.6;
        painter->drawEllipse(QRectF(box).adjusted(inset, inset, -inset, -inset));
        painter->restore();
        return;
    }
    const QColor empty = enabled ? QColor(Qt::white) : colours::kWindow;
    DrawBox(painter, box, chosen ? full : empty, chosen ? full : colours::kMarkLine, 1.2);
    if (chosen) DrawStroke(painter, box, {{-3.6, 0.2}, {-1.1, 2.8}, {3.7, -2.6}}, Qt::white, 1.8);
}

}  // namespace

ScreenStyle::ScreenStyle() : QProxyStyle(u"fusion"_s) {}

void ScreenStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    switch (element) {
        case PE_PanelLineEdit:
            // Inside a combo or spin box the outer frame is drawn by that box.
            if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                frame != nullptr && frame->lineWidth > 0) {
                DrawField(option, painter);
                return;
            }
            break;
        case PE_FrameLineEdit:
            return;
        case PE_Frame:
            DrawEdges(option->rect, painter);
            return;
        case PE_FrameGroupBox:
            DrawGroup(option, painter, widget);
            return;
        case PE_IndicatorCheckBox:
        case PE_IndicatorRadioButton:
            DrawMark(option, painter, element == PE_IndicatorRadioButton);
            return;
        case PE_FrameFocusRect:
            // Buttons and choices show the focus by their border.
            if (widget != nullptr && widget->inherits("QAbstractButton")) return;
            break;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ScreenStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if ((element == CE_RadioButton || element == CE_CheckBox) && button != nullptr) {
        if (button->state.testFlag(State_HasFocus))
            DrawBox(painter, button->rect, colours::kFocusTint, colours::kAccent, 1);
        QStyleOptionButton inside(*button);
        inside.rect.adjust(5, 0, -3, 0);
        QProxyStyle::drawControl(element, &inside, painter, widget);
    } else if (element == CE_PushButtonBevel) {
        DrawButton(option, painter, widget);
    } else if (element == CE_PushButtonLabel && button != nullptr) {
        QStyleOptionButton caption(*button);
        caption.palette.setColor(QPalette::Active, QPalette::ButtonText, ColoursOf(widget).ink);
        caption.palette.setColor(QPalette::Inactive, QPalette::ButtonText, ColoursOf(widget).ink);
        QProxyStyle::drawControl(element, &caption, painter, widget);
    } else if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        painter->fillRect(option->rect, colours::kHead);
        painter->setPen(colours::kBorder);
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
        if (element == CE_HeaderSection)
            painter->drawLine(option->rect.topRight(), option->rect.bottomRight());
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ScreenStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*bar, painter, widget);
        return;
    }
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control != CC_ComboBox || combo == nullptr || !combo->frame) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    DrawField(option, painter);
    const bool enabled = combo->state.testFlag(State_Enabled);
    DrawStroke(painter, subControlRect(CC_ComboBox, combo, SC_ComboBoxArrow, widget),
               {{-4, -2}, {0, 2}, {4, -2}}, enabled ? colours::kInk : colours::kFaint, 1.5);
}

void ScreenStyle::drawScrollBar(const QStyleOptionSlider& bar, QPainter* painter,
                                const QWidget* widget) const {
    const bool upright = bar.orientation == Qt::Vertical;
    const bool scrolls = bar.state.testFlag(State_Enabled) && bar.maximum > bar.minimum;
    painter->fillRect(bar.rect, colours::kCard);
    const auto arrow = [&](SubControl part, qreal way) {
        QPolygonF points{{-3.5, -way}, {0, way}, {3.5, -way}};
        if (!upright) points = QTransform(0, 1, 1, 0, 0, 0).map(points);
        DrawStroke(painter, subControlRect(CC_ScrollBar, &bar, part, widget), points,
                   scrolls ? colours::kQuiet : colours::kLine, 1.5);
    };
    arrow(SC_ScrollBarSubLine, -1.75);
    arrow(SC_ScrollBarAddLine, 1.75);
    if (!scrolls) return;
    const QRect slider = subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    const bool grasped = bar.activeSubControls.testFlag(SC_ScrollBarSlider);
    const QColor fill = grasped ? colours::kMarkLine : colours::kBorder;
    DrawBox(painter, upright ? slider.adjusted(3, 1, -3, -1) : slider.adjusted(1, 3, -1, -3), fill, fill, 1);
}

QSize ScreenStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int line = option != nullptr ? option->fontMetrics.height() : 0;
    switch (type) {
        case CT_RadioButton:
        case CT_CheckBox:
            result += QSize(8, 4);
            break;
        case CT_LineEdit:
        case CT_ComboBox:
            result.setHeight(line + 2 * kFieldPadding + 2);
            break;
        case CT_PushButton:
            result.setHeight(line + 2 * kFieldPadding + 6);
            result.setWidth(std::max(result.width() + 12, 6 * line));
            break;
        case CT_HeaderSection:
            result.setHeight(line + 2 * kFieldPadding);
            break;
        default:
            break;
    }
    return result;
}

int ScreenStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    if (hint == SH_ItemView_ActivateItemOnSingleClick || hint == SH_EtchDisabledText) return 0;
    if (hint == SH_Table_GridLineColor) return static_cast<int>(colours::kLine.rgb());
    return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace akarix
