#include "platform/dao/RecordsetImpl.h"

#include <algorithm>
#include <utility>

#include "platform/dao/Conversion.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

[[noreturn]] void Raise(int number, const QString& detail = QString()) {
    throw StoreError(number, detail, u"DAO.Recordset"_s);
}

std::int64_t RowNumber(const StoreRow& row) {
    return std::get<std::int64_t>(row.back());
}

// The columns set, by their stored names, with their values.
std::pair<std::vector<QString>, StoreRow> Written(const Plan& plan, const std::vector<bool>& written,
                                                  const StoreRow& buffer) {
    std::pair<std::vector<QString>, StoreRow> set;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i]) {
            set.first.push_back(plan.columns[i].column);
            set.second.push_back(buffer[i]);
        }
    }
    return set;
}

}  // namespace

Recordset::Impl::Impl(std::shared_ptr<Session> ofSession, BoundStatement ofStatement)
    : session(std::move(ofSession)), statement(std::move(ofStatement)) {}

void Recordset::Impl::requireOpen() const {
    if (!open || !session->isOpen()) Raise(3420);
}

void Recordset::Impl::load() {
    requireOpen();
    if (loaded) return;
    rows = session->engine().rows(statement);
    loaded = true;
    for (StoreRow& row : added) {
        std::erase_if(rows, [&](const StoreRow& other) { return RowNumber(other) == RowNumber(row); });
        rows.push_back(std::move(row));
    }
    added.clear();
    seen = std::min(count(), 1);
}

void Recordset::Impl::requireRow() {
    load();
    if (!hasRow()) Raise(3021);
}

void Recordset::Impl::moveTo(int index) {
    editing = Editing::No;
    position = std::clamp(index, -1, count());
    seen = std::max(seen, std::min(position + 1, count()));
}

const TableDef& Recordset::Impl::table() {
    const Engine& engine = session->engine();
    if (!behind || behindVersion != engine.catalogueVersion()) {
        const QString& name = statement.plan->updatableTable;
        behind = name.isEmpty() ? nullptr : engine.catalogue().find(name);
        behindVersion = engine.catalogueVersion();
    }
    if (!behind) Raise(3027);
    return *behind;
}

const ColumnDef& Recordset::Impl::storedColumn(int index) {
    const QString& name = column(index).column;
    const TableDef& definition = table();
    const int stored = name.isEmpty() ? -1 : definition.indexOf(name);
    if (stored < 0) Raise(3164, column(index).name);
    return definition.columns[static_cast<std::size_t>(stored)];
}

int Recordset::Impl::indexOf(const QString& name) const {
    const auto& columns = statement.plan->columns;
    const auto at = [&](Qt::CaseSensitivity sensitivity) {
        const auto found = std::find_if(columns.begin(), columns.end(), [&](const ResultColumn& column) {
            return sensitivity == Qt::CaseSensitive ? column.name == name
                                                    : column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
    };
    // Most callers spell a column as its table does, which is quickly told.
    int index = at(Qt::CaseSensitive);
    if (index < 0) index = at(Qt::CaseInsensitive);
    if (index >= 0) return index;
    Raise(3265, name);
}

Variant Recordset::Impl::value(int index) {
    requireOpen();
    const auto at = static_cast<std::size_t>(index);
    if (editing == Editing::No) requireRow();
    const StoreRow& row = editing == Editing::No ? rows[static_cast<std::size_t>(position)] : buffer;
    return VariantOf(column(index).type, row[at]);
}

void Recordset::Impl::setValue(int index, const Variant& value) {
    requireOpen();
    if (editing == Editing::No) Raise(3020);
    const auto at = static_cast<std::size_t>(index);
    buffer[at] = StoredAs(storedColumn(index), value);
    written[at] = true;
}

void Recordset::Impl::startNew() {
    const TableDef& definition = table();
    const auto& columns = statement.plan->columns;
    buffer.assign(columns.size() + 1, StoreValue());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int stored = definition.indexOf(columns[i].column);
        if (stored >= 0 && definition.columns[static_cast<std::size_t>(stored)].zeroDefault)
            buffer[i] = std::int64_t{0};
    }
    written.assign(columns.size(), false);
    editing = Editing::New;
}

void Recordset::Impl::insertNew() {
    const auto [columns, values] = Written(*statement.plan, written, buffer);
    buffer.back() = session->engine().insertRow(table(), columns, values);
    editing = Editing::No;
    if (!loaded) {
        added.push_back(buffer);
        return;
    }
    const bool atEnd = position == count();
    rows.push_back(buffer);
    if (atEnd) position = count();
    seen = std::max(seen, 1);
}

void Recordset::Impl::updatePresent() {
    const auto [columns, values] = Written(*statement.plan, written, buffer);
    session->engine().updateRow(table(), RowNumber(buffer), columns, values);
    editing = Editing::No;
    rows[static_cast<std::size_t>(position)] = buffer;
}

}  // namespace akarix
