#include "platform/forms/Style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTranslator>

namespace akarix {
namespace {

// Cool greys for what stands still, one warm tint for where the keyboard is: the eye finds it at once on a
// screen of thirty fields, and after eight hours nothing glares.
const QColor window(0xee, 0xf1, 0xf3);
const QColor ink(0x1f, 0x27, 0x2e);
const QColor quiet(0x56, 0x62, 0x6c);  // notes: behind the fields, yet read without effort
const QColor faint(0x8b, 0x95, 0x9d);
const QColor border(0x9c, 0xa8, 0xb1);
const QColor accent(0x1f, 0x6f, 0xa8);
const QColor head(0xd9, 0xe3, 0xea);
const QColor button(0xfb, 0xfc, 0xfd);
const QColor buttonHover(0xef, 0xf6, 0xfb);
const QColor buttonDown(0xcf, 0xe0, 0xec);
const QColor focusTint(0xff, 0xf8, 0xdc);
const QColor rowTint(0xe3, 0xf0, 0xf8);

constexpr int fieldPadding = 4;  // above and below a field's text

QPalette screenPalette() {
    QPalette p;
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, ink);
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf8, 0xfa));
    p.setColor(QPalette::Text, ink);
    p.setColor(QPalette::Button, button);
    p.setColor(QPalette::ButtonText, ink);
    p.setColor(QPalette::Highlight, accent);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, quiet);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(QPalette::Disabled, role, faint);
    }
    p.setColor(QPalette::Disabled, QPalette::Base, window);
    p.setColor(QPalette::Inactive, QPalette::Highlight, accent.lighter(130));
    return p;
}

void drawBox(QPainter* painter, const QRect& rect, const QColor& fill, const QColor& line, qreal width) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(line, width));
    painter->setBrush(fill);
    const qreal inset = width / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), 2.5, 2.5);
    painter->restore();
}

class ScreenStyle : public QProxyStyle {
 public:
    ScreenStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
            case PE_PanelLineEdit:
                // Inside a combo or spin box the outer frame is drawn by that box.
                if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
                    frame != nullptr && frame->lineWidth > 0) {
                    drawField(option, painter);
                    return;
                }
                break;
            case PE_FrameLineEdit:
                return;
            case PE_Frame:
                drawEdges(option->rect, painter);
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

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* choice = qstyleoption_cast<const QStyleOptionButton*>(option);
        if ((element == CE_RadioButton || element == CE_CheckBox) && choice != nullptr) {
            if (choice->state.testFlag(State_HasFocus)) drawBox(painter, choice->rect, focusTint, accent, 1);
            QStyleOptionButton inside(*choice);
            inside.rect.adjust(5, 0, -3, 0);
            QProxyStyle::drawControl(element, &inside, painter, widget);
        } else if (element == CE_PushButtonBevel) {
            drawButton(option, painter);
        } else if (element == CE_HeaderSection) {
            painter->fillRect(option->rect, head);
            painter->setPen(border);
            painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
            painter->drawLine(option->rect.topRight(), option->rect.bottomRight());
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (control != CC_ComboBox || combo == nullptr || !combo->frame) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            return;
        }
        drawField(option, painter);
        QRect arrow = subControlRect(CC_ComboBox, combo, SC_ComboBoxArrow, widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(combo->state.testFlag(State_Enabled) ? ink : faint, 1.5));
        const QPointF centre = QRectF(arrow).center();
        painter->drawPolyline(
            QPolygonF{centre + QPointF(-4, -2), centre + QPointF(0, 2), centre + QPointF(4, -2)});
        painter->restore();
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override {
        QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
        const int line = option != nullptr ? option->fontMetrics.height() : 0;
        switch (type) {
            case CT_RadioButton:
            case CT_CheckBox:
                result += QSize(8, 4);
                break;
            case CT_LineEdit:
            case CT_ComboBox:
                result.setHeight(line + 2 * fieldPadding + 2);
                break;
            case CT_PushButton:
                result.setHeight(line + 2 * fieldPadding + 6);
                result.setWidth(std::max(result.width() + 12, 6 * line));
                break;
            case CT_HeaderSection:
                result.setHeight(line + 2 * fieldPadding);
                break;
            default:
                break;
        }
        return result;
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_ItemView_ActivateItemOnSingleClick || hint == SH_EtchDisabledText) return 0;
        if (hint == SH_Table_GridLineColor) return static_cast<int>(QColor(0xd5, 0xdc, 0xe2).rgb());
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

 private:
    static void drawField(const QStyleOption* option, QPainter* painter) {
        const bool enabled = option->state.testFlag(State_Enabled);
        const bool focused = enabled && option->state.testFlag(State_HasFocus);
        QColor fill = enabled ? option->palette.color(QPalette::Base) : window;
        if (focused && !option->state.testFlag(State_ReadOnly)) fill = focusTint;
        drawBox(painter, option->rect, fill, focused ? accent : border, focused ? 2 : 1);
    }

    /// Filled, as a line of one pixel is lost here and there under a scale that is no whole number.
    static void drawEdges(const QRect& rect, QPainter* painter) {
        painter->fillRect(rect.x(), rect.y(), rect.width(), 1, border);
        painter->fillRect(rect.x(), rect.bottom(), rect.width(), 1, border);
        painter->fillRect(rect.x(), rect.y(), 1, rect.height(), border);
        painter->fillRect(rect.right(), rect.y(), 1, rect.height(), border);
    }

    static void drawButton(const QStyleOption* option, QPainter* painter) {
        const QStyle::State state = option->state;
        const bool enabled = state.testFlag(State_Enabled);
        const bool focused = enabled && state.testFlag(State_HasFocus);
        QColor fill = enabled ? button : window;
        if (enabled && state.testFlag(State_MouseOver)) fill = buttonHover;
        if (focused) fill = focusTint;
        if (state & (State_Sunken | State_On)) fill = buttonDown;
        drawBox(painter, option->rect, fill,
                focused   ? accent
                : enabled ? border
                          : border.lighter(125),
                focused ? 2 : 1);
    }
};

QString firstFamily(const QStringList& wanted) {
    for (const QString& family : wanted) {
        if (QFontDatabase::hasFamily(family)) return family;
    }
    return wanted.back();
}

}  // namespace

void ApplyStyle(QApplication& application) {
    QApplication::setStyle(new ScreenStyle);
    QApplication::setPalette(screenPalette());
    QApplication::setFont(ScreenFont());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    // The words of Qt's own menus and dialogs.
    auto* words = new QTranslator(&application);
    if (words->load(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(words);
    }
}

QFont ScreenFont() {
    static const QString family = firstFamily({QStringLiteral("ＭＳ ゴシック"), QStringLiteral("MS Gothic"),
                                               QStringLiteral("IPAGothic"), QStringLiteral("IPAゴシック")});
    QFont font(family);
    font.setPixelSize(14);
    font.setStyleHint(QFont::Monospace);
    return font;
}

int BoxWidth(int bytes) {
    constexpr int cursor = 2;
    constexpr int side = 8;  // the frame, the line edit's own margin and TextBox's
    return QFontMetrics(QApplication::font()).horizontalAdvance(QString(bytes, u'0')) + cursor + 2 * side;
}

QColor FocusColour() {
    return focusTint;
}

QColor PresentRowColour() {
    return rowTint;
}

}  // namespace akarix
