#pragma once

#include <QLabel>

namespace akarix {

/// Fixed text, or the name beside a code. Line breaks stand as they are; nothing is read as markup.
class Label : public QLabel {
    Q_OBJECT

 public:
    explicit Label(const QString& caption = {}, QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void SetCaption(const QString& caption) { setText(caption); }
};

/// A picture that can be clicked; BorderStyle 1 looks pressed in.
class Image : public QLabel {
    Q_OBJECT

 public:
    explicit Image(QWidget* parent = nullptr);

    void SetBorderStyle(int style);

 signals:
    void Click();
    void MouseDown();
    void MouseUp();

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace akarix
