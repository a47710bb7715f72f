#include "platform/dao/Field.h"

#include "platform/dao/RecordsetImpl.h"
#include "platform/dialect/ColumnKind.h"

namespace akarix {

const QString& Field::Name() const {
    return owner_->impl_->column(index_).name;
}

FieldType Field::Type() const {
    return owner_->impl_->column(index_).type;
}

int Field::Size() const {
    const ResultColumn& column = owner_->impl_->column(index_);
    return KindSize(column.type, column.size);
}

Variant Field::Value() const {
    return owner_->impl_->value(index_);
}

void Field::SetValue(const Variant& value) {
    owner_->impl_->setValue(index_, value);
}

}  // namespace akarix
