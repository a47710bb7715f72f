#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>

namespace akarix {

/// How a font is set on paper. Sizes are in points; the QFont made of it counts its pixels in twips.
struct PaperFontKey {
    QString name;
    double size = 11;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    friend bool operator==(const PaperFontKey&, const PaperFontKey&) = default;
    friend size_t qHash(const PaperFontKey& key, size_t seed = 0) {
        return qHashMulti(seed, key.name, key.size, key.bold, key.italic, key.underline, key.strikeout);
    }
};

/// A font ready for a painter in twips, with the widths of its letters remembered.
class PaperFont {
 public:
    explicit PaperFont(const PaperFontKey& key);

    const QFont& font() const { return font_; }
    double em() const { return em_; }
    /// From the top of a line of one em to the base line. The substitutes' own line heights differ from those
    /// of the fonts that the templates are made for.
    double ascent() const { return em_ * 0.859; }
    double width(const QString& text);
    /// Draws a text from its base line's left end, as bold on every device as in a PDF file.
    void draw(QPainter& painter, QPointF base, const QString& text) const;
    /// True when the machine lacks the named font and another one stands in, whose figures may be wider.
    bool substituted() const { return substituted_; }

 private:
    QFont font_;
    double em_;
    double secondStrike_ = 0;  ///< how far left of the first, in twips; 0: struck once
    bool substituted_ = false;
    QHash<char32_t, double> widths_;
};

/// The remembered font of a key; the reference holds as long as the program runs.
PaperFont& FontOnPaper(const PaperFontKey& key);

/// A text as the named font shows it: Japanese fonts have a yen sign in the backslash's place, which the
/// fonts standing in for them lack.
QString AsShown(const QString& text, const QString& fontName);

}  // namespace akarix
