#include "admin/Terminal.h"

#include <cstdio>

#include "platform/runtime/Literals.h"

namespace akarix::admin {

namespace {

void Write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

constexpr qint64 kPatience = 1000;  // ms
constexpr qint64 kStepPause = 100;

}  // namespace

void Tell(const QString& text) {
    Write(stdout, text);
}

void TellError(const QString& text) {
    Write(stderr, text);
}

ProgressLine::~ProgressLine() {
    if (shown_) Write(stderr, u"\n"_s);
}

void ProgressLine::show(const QString& text) {
    if (!shown_ && clock_.elapsed() < kPatience) return;
    shown_ = true;
    Write(stderr, u"\r\x1b[K"_s + text);
}

void ProgressLine::stage(const QString& what, bool /*mayStop*/) {
    what_ = what;
}

void ProgressLine::step(int done, int total) {
    const qint64 now = clock_.elapsed();
    if (now < kPatience || now < stepShown_ + kStepPause) return;
    stepShown_ = now;
    show(u"%1 %2 / %3 件"_s.arg(what_).arg(done).arg(total));
}

}  // namespace akarix::admin
