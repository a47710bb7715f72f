#pragma once

#include <QString>

#include "platform/dialect/Schema.h"
#include "platform/runtime/Variant.h"

namespace akarix {

struct RecordsetState;

/// One column of a recordset at its present row. Reading without a row raises 3021; writing outside AddNew or
/// Edit raises 3020; a text of no length 3315, one wider than the column 3163, a value of the wrong kind
/// 3421.
class Field {
 public:
    const QString& Name() const;
    FieldType Type() const;
    /// Text: characters; otherwise the bytes of the kind.
    int Size() const;
    Variant Value() const;
    void SetValue(const Variant& value);

    Field& operator=(const Variant& value) {
        SetValue(value);
        return *this;
    }

 private:
    friend struct RecordsetState;
    Field(RecordsetState* of, int index) : state_(of), index_(index) {}
    RecordsetState* state_;
    int index_;
};

}  // namespace akarix
