#pragma once

#include <QElapsedTimer>
#include <QString>

#include "platform/runtime/Progress.h"

namespace akarix::admin {

void Tell(const QString& text);
void TellError(const QString& text);

/// A line of progress for work that takes more than a second; quick work stays silent.
class ProgressLine : public Progress {
 public:
    ProgressLine() { clock_.start(); }
    ~ProgressLine() override;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(const QString& text);
    /// Left by the terminal's own keys, not from here.
    void stage(const QString& what, bool mayStop) override;
    void step(int done, int total) override;

 private:
    QElapsedTimer clock_;
    qint64 stepShown_ = 0;
    QString what_;
    bool shown_ = false;
};

}  // namespace akarix::admin
