#include "platform/runtime/FormatMask.h"

namespace akarix {

namespace {

bool IsDateMark(QChar c) {
    return QStringView(u"deghmnsy").contains(c.toLower());
}

}  // namespace

std::optional<QString> TakeQuoted(const QString& mask, qsizetype& at) {
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

QStringList MaskSections(const QString& mask) {
    QStringList sections;
    qsizetype from = 0;
    for (qsizetype at = 0; at < mask.size();) {
        if (TakeQuoted(mask, at)) continue;
        if (mask[at] == u';') {
            sections += mask.mid(from, at - from);
            from = at + 1;
        }
        ++at;
    }
    sections += mask.mid(from);
    return sections;
}

MaskKind MaskKindOf(const QString& mask) {
    bool separatesDates = false;
    bool separatesNumbers = false;
    for (qsizetype at = 0; at < mask.size();) {
        if (TakeQuoted(mask, at)) continue;
        const QChar c = mask[at];
        if (QStringView(u"0#").contains(c)) return MaskKind::Number;
        if (IsDateMark(c)) return MaskKind::Date;
        separatesDates = separatesDates || c == u'/' || c == u':';
        separatesNumbers = separatesNumbers || c == u'.' || c == u',';
        ++at;
    }
    return separatesDates && !separatesNumbers ? MaskKind::Date : MaskKind::Number;
}

}  // namespace akarix
