#include "sample/RowWriter.h"

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/Text.h"

namespace akarix::sample {

RowWriter::RowWriter(const QString& table, const QString& columns)
    : set_(gDb->OpenRecordset(u"SELECT * FROM "_s + table)), columns_(columns.split(u',')) {}

void RowWriter::add(std::initializer_list<Variant> values) {
    set_.AddNew();
    auto column = columns_.cbegin();
    for (const Variant& value : values) {
        const QString* text = value.If<QString>();
        set_.Fields(*column++) = text != nullptr ? Variant(EmptyToBlank(*text)) : value;
    }
    set_.Update();
}

}  // namespace akarix::sample
