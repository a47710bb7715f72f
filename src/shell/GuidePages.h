#pragma once

#include <QTextBrowser>

namespace akarix {

/// The clerk's guide as it is installed: Markdown with pictures. Headings are the places that links lead to.
class GuidePages : public QTextBrowser {
    Q_OBJECT

 public:
    explicit GuidePages(QWidget* parent);

    /// Shows the chapter of the screens under this heading, the beginning where there is none of that name.
    void showScreen(const QString& heading);

 protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void follow(const QUrl& link);
    void dress();
};

}  // namespace akarix
