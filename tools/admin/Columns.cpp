#include "admin/Columns.h"

#include <algorithm>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix::admin {

Columns::Columns(const QStringList& heads, const QString& indent) : indent_(indent) {
    for (const QString& head : heads) {
        right_ += head.startsWith(u'>');
        heads_ += right_.back() ? head.mid(1) : head;
    }
}

void Columns::add(const QStringList& cells) {
    rows_.push_back(cells);
}

QString Columns::text() const {
    // A character takes as many places as it has bytes in the code page.
    QList<int> widths(heads_.size());
    const auto widen = [&widths](const QStringList& cells) {
        for (qsizetype i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], ByteLength932(cells[i]));
    };
    widen(heads_);
    for (const QStringList& row : rows_)
        widen(row);

    const auto line = [&](const QStringList& cells) {
        QString text = indent_;
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QString blanks(widths[i] - ByteLength932(cells[i]), u' ');
            text += (i > 0 ? u"  "_s : QString()) + (right_[i] ? blanks + cells[i] : cells[i] + blanks);
        }
        while (text.endsWith(u' '))
            text.chop(1);
        return text + u'\n';
    };
    QString text = line(heads_);
    for (const QStringList& row : rows_)
        text += line(row);
    return text;
}

}  // namespace akarix::admin
