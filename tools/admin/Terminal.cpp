#include "admin/Terminal.h"

#include <cstdio>

namespace akarix::admin {

namespace {

void write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

constexpr qint64 patience = 1000;  // ms
constexpr qint64 stepPause = 100;

}  // namespace

void tell(const QString& text) {
    write(stdout, text);
}

void tellError(const QString& text) {
    write(stderr, text);
}

void tellWrongUse(const QString& command) {
    tellError(QStringLiteral("引数が正しくありません。使い方: akarix-admin %1 --help\n").arg(command));
}

ProgressLine::~ProgressLine() {
    if (shown_) write(stderr, QStringLiteral("\n"));
}

void ProgressLine::show(const QString& text) {
    if (!shown_ && clock_.elapsed() < patience) return;
    shown_ = true;
    write(stderr, QStringLiteral("\r\x1b[K") + text);
}

void ProgressLine::stage(const QString& what, bool /*mayStop*/) {
    what_ = what;
}

void ProgressLine::step(int done, int total) {
    const qint64 now = clock_.elapsed();
    if (now < patience || now < stepShown_ + stepPause) return;
    stepShown_ = now;
    show(QStringLiteral("%1 %2 / %3 件").arg(what_).arg(done).arg(total));
}

}  // namespace akarix::admin
