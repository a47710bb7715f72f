#include "platform/print/PaperFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QStringList>
#include <algorithm>
#include <deque>
#include <vector>

#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int TwipsPerPoint = 20;

struct Family {
    QStringList spellings;  ///< lower case, without blanks, full-width letters as half-width ones
    QStringList installed;  ///< names under which a machine may have the font itself
    QString substitute;
};

const std::vector<Family>& KnownFamilies() {
    static const std::vector<Family> families = {
        {{"ms明朝", "msmincho"}, {"ＭＳ 明朝", "MS Mincho"}, "IPAMincho"},
        {{"msp明朝", "mspmincho"}, {"ＭＳ Ｐ明朝", "MS PMincho"}, "IPAPMincho"},
        {{"msゴシック", "msgothic"}, {"ＭＳ ゴシック", "MS Gothic"}, "IPAGothic"},
        {{"mspゴシック", "mspgothic", "msuigothic"}, {"ＭＳ Ｐゴシック", "MS PGothic"}, "IPAPGothic"},
        {{"游ゴシック", "yugothic"}, {"游ゴシック", "Yu Gothic"}, "IPAPGothic"},
        {{"游明朝", "yumincho"}, {"游明朝", "Yu Mincho"}, "IPAPMincho"},
        {{"メイリオ", "meiryo", "meiryoui"}, {"メイリオ", "Meiryo"}, "IPAPGothic"},
    };
    return families;
}

struct Choice {
    QString family;
    bool substituted;
};

const Family* KnownFamily(const QString& name) {
    QString plain = name.normalized(QString::NormalizationForm_KC).toLower();
    plain.remove(QLatin1Char(' '));
    for (const Family& family : KnownFamilies())
        if (family.spellings.contains(plain)) return &family;
    return nullptr;
}

Choice ChooseFamily(const QString& name) {
    const Family* family = KnownFamily(name);
    if (!family) return {name, !QFontDatabase::hasFamily(name)};
    for (const QString& installed : family->installed)
        if (QFontDatabase::hasFamily(installed)) return {installed, false};
    return {family->substitute, true};
}

bool HasBoldFace(const QFont& font) {
    const QString family = QFontInfo(font).family();
    const QStringList styles = QFontDatabase::styles(family);
    return std::any_of(styles.begin(), styles.end(),
                       [&family](const QString& style) { return QFontDatabase::bold(family, style); });
}

}  // namespace

PaperFont::PaperFont(const PaperFontKey& key) : em_(key.size * TwipsPerPoint) {
    const Choice choice = ChooseFamily(key.name);
    substituted_ = choice.substituted;
    // Letters that a western font lacks come from the Japanese one.
    font_.setFamilies({choice.family, u"IPAPGothic"_s});
    font_.setPixelSize(std::max(1, qRound(em_)));
    font_.setBold(key.bold);
    font_.setItalic(key.italic);
    font_.setUnderline(key.underline);
    font_.setStrikeOut(key.strikeout);
    font_.setHintingPreference(QFont::PreferNoHinting);
    font_.setKerning(false);  // a text is as wide as its letters, so that their widths can be remembered
    if (key.bold && !HasBoldFace(font_)) secondStrike_ = QFontMetricsF(font_).lineWidth() / 2;
}

void PaperFont::draw(QPainter& painter, QPointF base, const QString& text) const {
    painter.setFont(font_);
    painter.drawText(base, text);
    // A face without a bold cut is struck twice in a PDF file. A screen makes such letters bolder by itself,
    // but only small ones, and in twips none is small.
    if (secondStrike_ > 0 && painter.paintEngine()->type() == QPaintEngine::Raster)
        painter.drawText(base - QPointF(secondStrike_, 0), text);
}

double PaperFont::width(const QString& text) {
    double sum = 0;
    for (const char32_t letter : text.toUcs4()) {
        auto found = widths_.find(letter);
        if (found == widths_.end()) {
            found =
                widths_.insert(letter, QFontMetricsF(font_).horizontalAdvance(QString::fromUcs4(&letter, 1)));
        }
        sum += *found;
    }
    return sum;
}

PaperFont& FontOnPaper(const PaperFontKey& key) {
    static std::deque<PaperFont> fonts;  // grows without moving what was handed out
    static QHash<PaperFontKey, PaperFont*> known;
    PaperFont*& font = known[key];
    if (!font) font = &fonts.emplace_back(key);
    return *font;
}

QString AsShown(const QString& text, const QString& fontName) {
    if (!text.contains(u'\\') || !KnownFamily(fontName)) return text;
    return QString(text).replace(u'\\', u'¥');
}

}  // namespace akarix
