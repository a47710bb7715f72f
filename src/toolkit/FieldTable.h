#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "platform/forms/TextBox.h"
#include "platform/runtime/Variant.h"

namespace akarix {

/// How the text of a field is stored: a Text as one blank where it is empty and cut to its bytes, the others
/// as the number in it, 0 where there is none.
enum class FieldKind { Long, Integer, Currency, Text };

/// The text of a stored value on the screen.
using DisplayRule = std::function<QString(const Variant& value)>;
/// The name of a code.
using NameRule = std::function<QString(const Variant& code)>;

/// Shows a value through a mask; "##" thus leaves a field of value 0 empty.
DisplayRule Masked(const QString& mask);
/// Shows 0 as nothing, any other value through the mask.
DisplayRule MaskedUnlessZero(const QString& mask);

/// The lookup picture F6(picture) of a field.
struct FieldLookup {
    int picture = 0;
    QString table;  ///< empty: the one that the screen keeps
    QString mode;
};

/// One field of a master screen.
struct MasterField {
    int index = 0;  ///< of ebox
    QString label;
    QString column;  ///< empty: on the screen only
    FieldKind kind = FieldKind::Text;
    int bytes = 0;
    int shownBytes = 0;  ///< the box's width where it differs
    ImeMode ime = ImeMode::Off;
    DisplayRule display = {};  ///< none: the plain text of the value
    QString note = {};         ///< told behind the box
    std::optional<FieldLookup> lookup = {};
    QString nameLabel = {};  ///< the label that shows the code's name, as "sRte"
    NameRule nameOf = {};
    bool newColumn = false;  ///< stands at the top of the next column of fields
};

/// The fields of a screen in the order of the walk.
using FieldTable = std::vector<MasterField>;

}  // namespace akarix
