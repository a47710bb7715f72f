#pragma once

#include <QStringList>

#include "platform/print/PrintSurface.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// Writes down what is drawn: "text 100,200 abc", "line 0,0 9000,0", "font CODE39", "end". A letter is as
/// wide as half the font's height, a full-width one as wide as the whole.
class RecordingSurface : public PrintSurface {
 public:
    void SetArea(int width, int height) override { calls += QString("area %1x%2").arg(width).arg(height); }
    void SetFontCharset(int charset) override { calls += QString("charset %1").arg(charset); }
    void SetFontName(const QString& name) override { calls += "font " + name; }
    void SetFontSize(int points) override {
        size_ = points;
        calls += QString("size %1").arg(points);
    }
    double TextWidth(const QString& text) override {
        double width = 0;
        for (const QChar letter : text)
            width += letter.unicode() < 0x100 ? size_ * 10 : size_ * 20;
        return width + excess;
    }
    double TextHeight(const QString&) override { return size_ * 20; }
    void Print(int x, int y, const QString& text) override {
        calls += QString("text %1,%2 ").arg(x).arg(y) + text;
    }
    void Line(int x1, int y1, int x2, int y2) override {
        calls += QString("line %1,%2 %3,%4").arg(x1).arg(y1).arg(x2).arg(y2);
    }
    void Cls() override { calls += "cls"; }
    void EndPage() override {
        calls += "end";
        if (calls.count("end") > 50) throw RuntimeError(482, "a report without an end");
    }

    QStringList calls;
    double excess = 0;  ///< what every text is wider, for measures that are no whole twips

 private:
    int size_ = 10;
};

}  // namespace akarix
