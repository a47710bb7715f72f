#include "platform/cipher/RowWrite.h"

#include "platform/cipher/Identifier.h"

namespace akarix {
namespace {

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

QByteArray RowWriteText(RowWrite kind, const TableDef& table, const std::vector<QString>& columns) {
    return kind == RowWrite::Insert ? InsertText(table, columns) : UpdateText(table, columns);
}

}  // namespace akarix
