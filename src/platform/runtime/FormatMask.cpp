#include "platform/runtime/FormatMask.h"

namespace akarix {

namespace {

bool startsWord(const QString& mask, qsizetype at, QLatin1StringView word) {
    return QStringView(mask).mid(at).startsWith(word, Qt::CaseInsensitive);
}

bool isDateMark(const QString& mask, qsizetype at) {
    const QChar c = mask[at].toLower();
    if (c == u'e') {  // an era year, unless it is an exponent
        const QChar next = at + 1 < mask.size() ? mask[at + 1] : QChar();
        return next != u'+' && next != u'-';
    }
    if (QStringView(u"cdghmnqswy").contains(c)) return true;
    for (const char* word : {"am/pm", "a/p", "ampm", "aaa", "ttttt", "oooo"}) {
        if (startsWord(mask, at, QLatin1StringView(word))) return true;
    }
    return false;
}

}  // namespace

std::optional<QString> takeQuoted(const QString& mask, qsizetype& at) {
    if (mask[at] == u'\\') {
        const QString literal = mask.mid(at + 1, 1);
        at += 2;
        return literal;
    }
    if (mask[at] == u'"') {
        qsizetype end = mask.indexOf(u'"', at + 1);
        if (end < 0) end = mask.size();
        const QString literal = mask.mid(at + 1, end - at - 1);
        at = end + 1;
        return literal;
    }
    return std::nullopt;
}

QStringList maskSections(const QString& mask) {
    QStringList sections;
    qsizetype from = 0;
    for (qsizetype at = 0; at < mask.size();) {
        if (takeQuoted(mask, at)) continue;
        if (mask[at] == u';') {
            sections += mask.mid(from, at - from);
            from = at + 1;
        }
        ++at;
    }
    sections += mask.mid(from);
    return sections;
}

MaskKind maskKind(const QString& mask) {
    bool separatesDates = false;
    bool separatesNumbers = false;
    for (qsizetype at = 0; at < mask.size();) {
        if (takeQuoted(mask, at)) continue;
        const QChar c = mask[at];
        if (QStringView(u"0#%").contains(c)) return MaskKind::Number;
        if (QStringView(u"@&<>!").contains(c)) return MaskKind::Text;
        if (isDateMark(mask, at)) return MaskKind::Date;
        separatesDates = separatesDates || c == u'/' || c == u':';
        separatesNumbers = separatesNumbers || c == u'.' || c == u',';
        ++at;
    }
    return separatesDates && !separatesNumbers ? MaskKind::Date : MaskKind::Number;
}

}  // namespace akarix
