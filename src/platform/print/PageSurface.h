#pragma once

#include <QLine>
#include <QStringList>
#include <variant>
#include <vector>

#include "platform/print/PaperFont.h"
#include "platform/print/PrintJob.h"
#include "platform/print/PrintSurface.h"
#include "platform/runtime/Literals.h"

namespace akarix {

/// Keeps what is drawn as a page that can be played on any device. What becomes of a page is said by
/// EndPage.
class PageSurface : public PrintSurface {
 public:
    void SetArea(int width, int height) override;
    void SetFontCharset(int charset) override;
    void SetFontName(const QString& name) override;
    void SetFontSize(int points) override;
    double TextWidth(const QString& text) override;
    double TextHeight(const QString& text) override;
    void Print(int x, int y, const QString& text) override;
    void Line(int x1, int y1, int x2, int y2) override;
    void Cls() override;

 protected:
    bool blank() const { return marks_.empty(); }
    /// Back to upright A4.
    void resetPaper() { paper_ = PrintPage().paper; }
    /// The page as drawn; a blank one takes its place.
    PrintPage takePage();

 private:
    struct Text {
        QPointF corner;
        QStringList lines;
        PaperFont* font;
    };
    using Mark = std::variant<Text, QLine>;
    static void draw(QPainter& painter, const Mark& mark);

    static constexpr int JapaneseCharset = 128;

    PaperFont& font() const { return FontOnPaper(fontKey_); }

    QSizeF paper_ = PrintPage().paper;
    PaperFontKey fontKey_{u"ＭＳ 明朝"_s, 10};
    int charset_ = JapaneseCharset;  ///< for the font named next
    std::vector<Mark> marks_;
};

}  // namespace akarix
