#include "platform/runtime/Trim.h"

namespace akarix {

namespace {

bool isBlank(QChar c) {
    return c == u' ' || c == u'　';
}

}  // namespace

QString LTrim(const QString& text) {
    qsizetype from = 0;
    while (from < text.size() && isBlank(text[from]))
        ++from;
    return text.sliced(from);
}

QString RTrim(const QString& text) {
    qsizetype to = text.size();
    while (to > 0 && isBlank(text[to - 1]))
        --to;
    return text.first(to);
}

QString Trim(const QString& text) {
    return LTrim(RTrim(text));
}

}  // namespace akarix
