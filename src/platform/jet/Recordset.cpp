#include "platform/jet/Recordset.h"

#include <algorithm>
#include <utility>

#include "platform/jet/ColumnKind.h"
#include "platform/jet/Conversion.h"
#include "platform/jet/Criteria.h"
#include "platform/jet/RecordsetImpl.h"
#include "platform/jet/StoreError.h"

namespace akarix {
namespace {

[[noreturn]] void Raise(int number, const QString& detail = QString()) {
    throw StoreError(number, detail, QStringLiteral("DAO.Recordset"));
}

std::int64_t RowNumber(const StoreRow& row) {
    return std::get<std::int64_t>(row.back());
}

}  // namespace

Recordset::Impl::Impl(std::shared_ptr<Session> ofSession, BoundStatement ofStatement)
    : session(std::move(ofSession)), statement(std::move(ofStatement)) {}

void Recordset::Impl::requireOpen() const {
    if (!open || !session->isOpen()) {
        Raise(3420);
    }
}

void Recordset::Impl::load() {
    requireOpen();
    if (loaded) {
        return;
    }
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
    if (!hasRow()) {
        Raise(3021);
    }
}

void Recordset::Impl::moveTo(int index) {
    editing = Editing::No;
    position = std::clamp(index, -1, count());
    seen = std::max(seen, std::min(position + 1, count()));
}

const TableDef& Recordset::Impl::table() const {
    const QString& name = statement.plan->updatableTable;
    const TableDef* found = name.isEmpty() ? nullptr : session->engine().catalogue().find(name);
    if (!found) {
        Raise(3027);
    }
    return *found;
}

const ColumnDef& Recordset::Impl::storedColumn(int index) const {
    const QString& name = statement.plan->columns[static_cast<std::size_t>(index)].column;
    const TableDef& behind = table();
    const int stored = name.isEmpty() ? -1 : behind.indexOf(name);
    if (stored < 0) {
        Raise(3164, statement.plan->columns[static_cast<std::size_t>(index)].name);
    }
    return behind.columns[static_cast<std::size_t>(stored)];
}

int Recordset::Impl::indexOf(const QString& name) const {
    const auto& columns = statement.plan->columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].name.compare(name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(i);
        }
    }
    Raise(3265, name);
}

Variant Recordset::Impl::value(int index) {
    requireOpen();
    const auto at = static_cast<std::size_t>(index);
    if (editing == Editing::No) {
        requireRow();
    }
    const StoreRow& row = editing == Editing::No ? rows[static_cast<std::size_t>(position)] : buffer;
    return VariantOf(statement.plan->columns[at].type, row[at]);
}

void Recordset::Impl::setValue(int index, const Variant& value) {
    requireOpen();
    if (editing == Editing::No) {
        Raise(3020);
    }
    const auto at = static_cast<std::size_t>(index);
    buffer[at] = StoredAs(storedColumn(index), value);
    written[at] = true;
}

void Recordset::Impl::startNew() {
    const TableDef& behind = table();
    const auto& columns = statement.plan->columns;
    buffer.assign(columns.size() + 1, StoreValue());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int stored = behind.indexOf(columns[i].column);
        if (stored >= 0 && behind.columns[static_cast<std::size_t>(stored)].zeroDefault) {
            buffer[i] = std::int64_t{0};
        }
    }
    written.assign(columns.size(), false);
    editing = Editing::New;
}

namespace {

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
    if (atEnd) {
        position = count();
    }
    seen = std::max(seen, 1);
}

void Recordset::Impl::updatePresent() {
    const auto [columns, values] = Written(*statement.plan, written, buffer);
    session->engine().updateRow(table(), RowNumber(buffer), columns, values);
    editing = Editing::No;
    rows[static_cast<std::size_t>(position)] = buffer;
}

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {
    const auto width = static_cast<int>(impl_->statement.plan->columns.size());
    for (int i = 0; i < width; ++i) {
        impl_->fields.push_back(Field(this, i));
    }
}

Recordset::Recordset(Recordset&& other) noexcept {
    *this = std::move(other);
}

Recordset& Recordset::operator=(Recordset&& other) noexcept {
    impl_ = std::move(other.impl_);
    if (impl_) {
        for (Field& field : impl_->fields) {
            field.owner_ = this;
        }
    }
    return *this;
}

Recordset::~Recordset() = default;

bool Recordset::Eof() const {
    impl_->load();
    return impl_->rows.empty() || impl_->position >= impl_->count();
}

bool Recordset::Bof() const {
    impl_->load();
    return impl_->rows.empty() || impl_->position < 0;
}

int Recordset::RecordCount() const {
    impl_->load();
    return impl_->seen;
}

void Recordset::MoveFirst() {
    impl_->load();
    if (impl_->rows.empty()) {
        Raise(3021);
    }
    impl_->moveTo(0);
}

void Recordset::MoveLast() {
    impl_->load();
    if (impl_->rows.empty()) {
        Raise(3021);
    }
    impl_->moveTo(impl_->count() - 1);
}

void Recordset::MoveNext() {
    if (Eof()) {
        Raise(3021);
    }
    impl_->moveTo(impl_->position + 1);
}

void Recordset::MovePrevious() {
    if (Bof()) {
        Raise(3021);
    }
    impl_->moveTo(impl_->position - 1);
}

void Recordset::FindFirst(const QString& criteria) {
    impl_->load();
    impl_->editing = Impl::Editing::No;
    const Criteria condition(criteria, impl_->statement.plan->columns);
    const auto found = std::find_if(impl_->rows.begin(), impl_->rows.end(),
                                    [&](const StoreRow& row) { return condition.matches(row); });
    impl_->noMatch = found == impl_->rows.end();
    if (!impl_->noMatch) {
        impl_->moveTo(static_cast<int>(found - impl_->rows.begin()));
    }
}

bool Recordset::NoMatch() const {
    impl_->requireOpen();
    return impl_->noMatch;
}

int Recordset::FieldCount() const {
    impl_->requireOpen();
    return static_cast<int>(impl_->fields.size());
}

Field& Recordset::Fields(const QString& name) {
    impl_->requireOpen();
    return impl_->fields[static_cast<std::size_t>(impl_->indexOf(name))];
}

Field& Recordset::Fields(int index) {
    impl_->requireOpen();
    if (index < 0 || index >= FieldCount()) {
        Raise(3265);
    }
    return impl_->fields[static_cast<std::size_t>(index)];
}

Variant Recordset::operator[](const QString& name) const {
    impl_->requireOpen();
    return impl_->value(impl_->indexOf(name));
}

void Recordset::AddNew() {
    impl_->requireOpen();
    impl_->startNew();
}

void Recordset::Edit() {
    impl_->requireOpen();
    impl_->table();
    impl_->requireRow();
    impl_->buffer = impl_->rows[static_cast<std::size_t>(impl_->position)];
    impl_->written.assign(impl_->fields.size(), false);
    impl_->editing = Impl::Editing::Present;
}

void Recordset::Update() {
    impl_->requireOpen();
    const bool isNew = impl_->editing == Impl::Editing::New;
    if (impl_->editing == Impl::Editing::No) {
        Raise(3020);
    }
    if (isNew) {
        impl_->insertNew();
    } else {
        impl_->updatePresent();
    }
}

void Recordset::CancelUpdate() {
    impl_->requireOpen();
    if (impl_->editing == Impl::Editing::No) {
        Raise(3020);
    }
    impl_->editing = Impl::Editing::No;
}

void Recordset::Close() {
    impl_->requireOpen();
    impl_->open = false;
    impl_->rows.clear();
}

const QString& Field::Name() const {
    return owner_->impl_->statement.plan->columns[static_cast<std::size_t>(index_)].name;
}

FieldType Field::Type() const {
    return owner_->impl_->statement.plan->columns[static_cast<std::size_t>(index_)].type;
}

int Field::Size() const {
    const ResultColumn& column = owner_->impl_->statement.plan->columns[static_cast<std::size_t>(index_)];
    return KindSize(column.type, column.size);
}

Variant Field::Value() const {
    return owner_->impl_->value(index_);
}

void Field::SetValue(const Variant& value) {
    owner_->impl_->setValue(index_, value);
}

}  // namespace akarix
