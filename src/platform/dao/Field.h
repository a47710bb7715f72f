#pragma once

#include <QString>

#include "platform/dialect/Schema.h"
#include "platform/runtime/Variant.h"

namespace akarix {

class Recordset;

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
    friend class Recordset;
    Field(Recordset* owner, int index) : owner_(owner), index_(index) {}
    Recordset* owner_;
    int index_;
};

}  // namespace akarix
