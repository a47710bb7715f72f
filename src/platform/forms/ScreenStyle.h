#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

namespace akarix {

/// How fields, buttons, grids and groups are drawn and how much room they take.
class ScreenStyle : public QProxyStyle {
 public:
    ScreenStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;

 private:
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter* painter, const QWidget* widget) const;
};

}  // namespace akarix
