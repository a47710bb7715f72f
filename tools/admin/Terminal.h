#pragma once

#include <QElapsedTimer>
#include <QString>

namespace akarix::admin {

void tell(const QString& text);
void tellError(const QString& text);
/// Says that a command was given wrong arguments and where its use is explained.
void tellWrongUse(const QString& command);

/// A line of progress for work that takes more than a second; quick work stays silent.
class ProgressLine {
 public:
    ProgressLine() { clock_.start(); }
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(const QString& text);

 private:
    QElapsedTimer clock_;
    bool shown_ = false;
};

}  // namespace akarix::admin
