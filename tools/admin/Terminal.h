#pragma once

#include <QElapsedTimer>
#include <QString>

namespace akarix::admin {

void tell(const QString& text);
void tellError(const QString& text);

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
