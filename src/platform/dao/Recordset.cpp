#include "platform/dao/Recordset.h"

#include <algorithm>
#include <utility>

#include "platform/dao/Criteria.h"
#include "platform/dao/RecordsetImpl.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

[[noreturn]] void Raise(int number) {
    throw StoreError(number, QString(), u"DAO.Recordset"_s);
}

}  // namespace

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}

Recordset::Recordset(Recordset&& other) noexcept {
    *this = std::move(other);
}

Recordset& Recordset::operator=(Recordset&& other) noexcept {
    impl_ = std::move(other.impl_);
    if (impl_)
        for (Field& field : impl_->fields)
            field.owner_ = this;
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
    if (impl_->rows.empty()) Raise(3021);
    impl_->moveTo(0);
}

void Recordset::MoveLast() {
    impl_->load();
    if (impl_->rows.empty()) Raise(3021);
    impl_->moveTo(impl_->count() - 1);
}

void Recordset::MoveNext() {
    if (Eof()) Raise(3021);
    impl_->moveTo(impl_->position + 1);
}

void Recordset::MovePrevious() {
    if (Bof()) Raise(3021);
    impl_->moveTo(impl_->position - 1);
}

void Recordset::FindFirst(const QString& criteria) {
    impl_->load();
    impl_->editing = Impl::Editing::No;
    const Criteria condition(criteria, impl_->statement.plan->columns);
    const auto found = std::find_if(impl_->rows.begin(), impl_->rows.end(),
                                    [&](const StoreRow& row) { return condition.matches(row); });
    impl_->noMatch = found == impl_->rows.end();
    if (!impl_->noMatch) impl_->moveTo(static_cast<int>(found - impl_->rows.begin()));
}

bool Recordset::NoMatch() const {
    impl_->requireOpen();
    return impl_->noMatch;
}

int Recordset::FieldCount() const {
    impl_->requireOpen();
    return impl_->width();
}

Field& Recordset::Fields(const QString& name) {
    impl_->requireOpen();
    return field(impl_->indexOf(name));
}

Field& Recordset::Fields(int index) {
    impl_->requireOpen();
    if (index < 0 || index >= FieldCount()) Raise(3265);
    return field(index);
}

Field& Recordset::field(int index) {
    // Many a recordset is only asked for its values and needs none of them.
    if (impl_->fields.empty()) {
        impl_->fields.reserve(static_cast<std::size_t>(impl_->width()));
        for (int i = 0; i < impl_->width(); ++i)
            impl_->fields.push_back(Field(this, i));
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
    impl_->written.assign(impl_->statement.plan->columns.size(), false);
    impl_->editing = Impl::Editing::Present;
}

void Recordset::Update() {
    impl_->requireOpen();
    const bool isNew = impl_->editing == Impl::Editing::New;
    if (impl_->editing == Impl::Editing::No) Raise(3020);
    if (isNew)
        impl_->insertNew();
    else
        impl_->updatePresent();
}

void Recordset::Close() {
    impl_->requireOpen();
    impl_->open = false;
    impl_->rows.clear();
}

}  // namespace akarix
