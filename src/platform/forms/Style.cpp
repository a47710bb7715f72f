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

namespace akarix {
namespace {

QPalette screenPalette() {
    QPalette p;
    p.setColor(QPalette::Window, colours::window);
    p.setColor(QPalette::WindowText, colours::ink);
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, colours::card);
    p.setColor(QPalette::Text, colours::ink);
    p.setColor(QPalette::Button, colours::button);
    p.setColor(QPalette::ButtonText, colours::ink);
    p.setColor(QPalette::Highlight, colours::accent);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, colours::quiet);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(QPalette::Disabled, role, colours::faint);
    }
    p.setColor(QPalette::Disabled, QPalette::Base, colours::window);
    p.setColor(QPalette::Inactive, QPalette::Highlight, colours::accent.lighter(130));
    return p;
}

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
    QApplication::setWindowIcon(ProgramIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("akarix"));  // a desk that asks the entry for the icon
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

QColor PresentRowColour() {
    return colours::rowTint;
}

}  // namespace akarix
