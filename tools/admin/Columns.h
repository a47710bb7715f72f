#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "platform/runtime/Literals.h"

namespace akarix::admin {

/// A table of text in columns that line up on a terminal, where kanji take two places.
class Columns {
 public:
    /// \param heads a head that begins with ">" stands over a column of numbers, set to the right.
    /// \param indent what stands before each line.
    explicit Columns(const QStringList& heads, const QString& indent = u"  "_s);

    void add(const QStringList& cells);
    bool isEmpty() const { return rows_.empty(); }
    /// The lines, the heads first.
    QString text() const;

 private:
    std::vector<QStringList> rows_;
    QStringList heads_;
    QString indent_;
    QList<bool> right_;
};

}  // namespace akarix::admin
