#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace akarix::admin {

/// A table of text in columns that line up on a terminal, where kanji take two places.
class Columns {
 public:
    /// \param heads a head that begins with ">" stands over a column of numbers, set to the right.
    explicit Columns(const QStringList& heads);

    void add(const QStringList& cells);
    bool isEmpty() const { return rows_.empty(); }
    /// The lines, each indented by two blanks, the heads first.
    QString text() const;

 private:
    std::vector<QStringList> rows_;
    QStringList heads_;
    QList<bool> right_;
};

}  // namespace akarix::admin
