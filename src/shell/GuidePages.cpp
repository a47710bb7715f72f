#include "shell/GuidePages.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextTable>

#include "platform/forms/Colours.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr int kTextWidth = 760;  // longer lines are hard to follow
constexpr int kEdge = 16;
constexpr int kAboveHeading = 20;
constexpr int kWholeWidth = 100;  // per cent

/// Installed, the guide lies in the share folder beside the program's; in a build tree beside the sources.
QString GuideFolder() {
    for (const auto* place : {u"../share/doc/akarix", u"../../docs", u"../../../docs"}) {
        const QDir folder(QCoreApplication::applicationDirPath() + u'/' + QString::fromUtf16(place));
        if (folder.exists(u"user-guide/screens.md"_s)) return folder.canonicalPath();
    }
    return {};
}

/// The name a link calls a heading by: marks are left out, blanks become hyphens.
QString PlaceOf(const QString& heading) {
    QString place;
    for (const QChar letter : heading.trimmed().toLower()) {
        if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_') place += letter;
        if (letter == u' ') place += u'-';
    }
    return place;
}

void NameHeading(const QTextBlock& heading) {
    QTextCharFormat name;
    name.setAnchor(true);
    name.setAnchorNames({PlaceOf(heading.text())});
    QTextCursor cursor(heading);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(name);
    QTextBlockFormat apart;
    apart.setTopMargin(kAboveHeading);
    cursor.mergeBlockFormat(apart);
}

void Rule(QTextFrame& frame) {
    for (QTextFrame* child : frame.childFrames()) {
        auto* table = qobject_cast<QTextTable*>(child);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(colours::kLine));
        format.setBorderCollapse(false);
        format.setCellSpacing(0);
        format.setWidth(QTextLength(QTextLength::PercentageLength, kWholeWidth));
        format.setCellPadding(4);
        table->setFormat(format);
    }
}

}  // namespace

GuidePages::GuidePages(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTextBrowser::anchorClicked, this, &GuidePages::follow);
}

void GuidePages::showScreen(const QString& heading) {
    const QString folder = GuideFolder();
    if (folder.isEmpty()) {
        setPlainText(u"操作のてびきが入っていません。パッケージの akarix を入れ直すと入ります。"_s);
        return;
    }
    QUrl place = QUrl::fromLocalFile(folder + u"/user-guide/screens.md"_s);
    place.setFragment(PlaceOf(heading));
    setSource(place);
}

QVariant GuidePages::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    const QImage picture(source().resolved(name).toLocalFile());
    return picture.width() > kTextWidth ? picture.scaledToWidth(kTextWidth, Qt::SmoothTransformation)
                                        : picture;
}

void GuidePages::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    const QUrl before = source();
    QTextBrowser::doSetSource(url, type);
    if (before.path() != url.path()) dress();
    if (url.hasFragment()) scrollToAnchor(url.fragment(QUrl::FullyDecoded));
}

void GuidePages::resizeEvent(QResizeEvent* event) {
    const int spare = width() - kTextWidth - 2 * kEdge;
    setViewportMargins(kEdge + std::max(0, spare / 2), 0, kEdge, 0);
    QTextBrowser::resizeEvent(event);
}

void GuidePages::follow(const QUrl& link) {
    const QUrl target = source().resolved(link);
    if (target.isLocalFile()) setSource(target);
}

void GuidePages::dress() {
    const QSignalBlocker unheard(document());  // a document that has changed is read again at every link
    QTextCursor once(document());              // laid out once, not for each change
    once.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0) NameHeading(block);
    Rule(*document()->rootFrame());
    once.endEditBlock();
}

}  // namespace akarix
