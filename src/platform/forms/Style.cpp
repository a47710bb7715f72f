#include "platform/forms/Style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QPalette>
#include <QTranslator>

#include "platform/forms/Colours.h"
#include "platform/forms/Icons.h"
#include "platform/forms/ScreenStyle.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

QPalette ScreenPalette() {
    QPalette p;
    p.setColor(QPalette::Window, colours::kWindow);
    p.setColor(QPalette::WindowText, colours::kInk);
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, colours::kCard);
    p.setColor(QPalette::Text, colours::kInk);
    p.setColor(QPalette::Button, colours::kButton);
    p.setColor(QPalette::ButtonText, colours::kInk);
    p.setColor(QPalette::Highlight, colours::kAccent);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, colours::kQuiet);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, colours::kFaint);
    p.setColor(QPalette::Disabled, QPalette::Base, colours::kWindow);
    p.setColor(QPalette::Inactive, QPalette::Highlight, colours::kAccent.lighter(130));
    return p;
}

QString FirstFamily(const QStringList& wanted) {
    for (const QString& family : wanted)
        if (QFontDatabase::hasFamily(family)) return family;
    return wanted.back();
}

}  // namespace

void ApplyStyle(QApplication& application) {
    QApplication::setStyle(new ScreenStyle);
    QApplication::setPalette(ScreenPalette());
    QApplication::setFont(ScreenFont());
    QApplication::setWindowIcon(ProgramIcon());
    QGuiApplication::setDesktopFileName(u"akarix"_s);  // a desk that asks the entry for the icon
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    // The words of Qt's own menus and dialogs.
    auto* words = new QTranslator(&application);
    if (words->load(u"qtbase_ja"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(words);
}

QFont ScreenFont() {
    static const QString family =
        FirstFamily({u"ＭＳ ゴシック"_s, u"MS Gothic"_s, u"IPAGothic"_s, u"IPAゴシック"_s});
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

QColor PresentRowColour() {
    return colours::kRowTint;
}

}  // namespace akarix
