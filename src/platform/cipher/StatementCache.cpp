#include "platform/cipher/StatementCache.h"

#include <algorithm>

#include "platform/cipher/Writer.h"

namespace akarix {
namespace {

constexpr std::size_t kMostRows = 64;

QByteArray Place(std::size_t index) {
    return '?' + QByteArray::number(static_cast<int>(index) + 1);
}

QByteArray InsertText(const TableDef& table, const std::vector<QString>& columns) {
    QByteArray text = "INSERT INTO " + Quoted(table.name);
    if (columns.empty()) return text + " DEFAULT VALUES";
    QByteArray names;
    QByteArray places;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const char* comma = i == 0 ? "" : ",";
        names += comma + Quoted(columns[i]);
        places += comma + Place(i);
    }
    return text + '(' + names + ") VALUES(" + places + ')';
}

QByteArray UpdateText(const TableDef& table, const std::vector<QString>& columns) {
    // One row is changed or none, so there is nothing to take back when a rule is broken; the engine need not
    // keep the page as it was for that, encrypted once more.
    QByteArray text = "UPDATE OR FAIL " + Quoted(table.name) + " SET ";
    for (std::size_t i = 0; i < columns.size(); ++i)
        text += (i == 0 ? "" : ",") + Quoted(columns[i]) + '=' + Place(i);
    return text + " WHERE rowid=" + Place(columns.size());
}

}  // namespace

const PreparedStatement& StatementCache::of(const std::shared_ptr<const BoundStatement>& bound) {
    if (const PreparedStatement* kept = bound_.object(bound.get())) return *kept;
    const Written written = Write(*bound);
    auto* made = new PreparedStatement{bound, Prepare(connection_, written.text), written.computes};
    bound_.insert(bound.get(), made);
    return *made;
}

sqlite3_stmt* StatementCache::of(RowWrite kind, const TableDef& table, const std::vector<QString>& columns) {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const RowEntry& entry) {
        return entry.kind == kind && entry.table == table.name && entry.columns == columns;
    });
    if (found != rows_.end()) {
        rows_.splice(rows_.begin(), rows_, found);
    } else {
        const QByteArray text =
            kind == RowWrite::Insert ? InsertText(table, columns) : UpdateText(table, columns);
        rows_.push_front({kind, table.name, columns, Prepare(connection_, text)});
        if (rows_.size() > kMostRows) rows_.pop_back();
    }
    return rows_.front().statement.get();
}

void StatementCache::clear() {
    bound_.clear();
    rows_.clear();
}

}  // namespace akarix
