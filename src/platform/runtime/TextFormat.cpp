#include "platform/runtime/TextFormat.h"

#include "platform/runtime/FormatMask.h"

namespace akarix {

namespace {

struct TextMask {
    explicit TextMask(const QString& section) {
        for (qsizetype at = 0; at < section.size();) {
            if (const auto literal = takeQuoted(section, at)) {
                parts += Part{u' ', *literal};
                continue;
            }
            const QChar c = section[at++];
            if (c == u'@' || c == u'&') {
                parts += Part{c, {}};
                ++places;
            } else if (c == u'<') {
                lower = true;
            } else if (c == u'>') {
                upper = true;
            } else if (c == u'!') {
                fromLeft = true;
            } else {
                parts += Part{u' ', c};
            }
        }
    }

    QString apply(QString text) const {
        if (upper) text = text.toUpper();
        if (lower) text = text.toLower();
        const qsizetype spare =
            places - text.size();  // places without a character; below 0 characters without
        qsizetype next = 0;        // character to be placed
        QString out;
        if (!fromLeft && spare < 0) {
            out = text.left(-spare);
            next = -spare;
        }
        qsizetype place = 0;
        for (const Part& part : parts) {
            if (part.place == u' ') {
                out += part.literal;
                continue;
            }
            const bool empty = fromLeft ? next >= text.size() : place < spare;
            ++place;
            if (!empty) {
                out += text[next++];
            } else if (part.place == u'@') {
                out += u' ';
            }
        }
        return out + text.mid(next);
    }

    struct Part {
        QChar place;  // '@' or '&', a blank for a literal
        QString literal;
    };
    QList<Part> parts;
    qsizetype places = 0;
    bool upper = false;
    bool lower = false;
    bool fromLeft = false;
};

}  // namespace

QString formatText(const QString& text, const QString& mask) {
    const QStringList sections = maskSections(mask);
    return TextMask(sections[text.isEmpty() && sections.size() > 1 ? 1 : 0]).apply(text);
}

}  // namespace akarix
