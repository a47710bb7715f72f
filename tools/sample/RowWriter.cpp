#include "sample/RowWriter.h"

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/Text.h"

namespace akarix::sample {

RowWriter::RowWriter(const QString& table) : set_(gDb->OpenRecordset(u"SELECT * FROM "_s + table)) {}

void RowWriter::add(std::initializer_list<std::pair<QString, Variant>> values) {
    set_.AddNew();
    for (const auto& [column, value] : values) {
        const QString* text = value.If<QString>();
        set_.Fields(column) = text != nullptr ? Variant(EmptyToBlank(*text)) : value;
    }
    set_.Update();
}

}  // namespace akarix::sample
