#include "platform/runtime/Text.h"

namespace akarix {

namespace {

bool IsBlank(QChar c) {
    return c == u' ' || c == u'　';
}

}  // namespace

QString LTrim(const QString& text) {
    qsizetype from = 0;
    while (from < text.size() && IsBlank(text[from]))
        ++from;
    return text.sliced(from);
}

QString RTrim(const QString& text) {
    qsizetype to = text.size();
    while (to > 0 && IsBlank(text[to - 1]))
        --to;
    return text.first(to);
}

QString Trim(const QString& text) {
    return LTrim(RTrim(text));
}

}  // namespace akarix
