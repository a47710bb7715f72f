#pragma once

#include <optional>

#include "toolkit/DisplayRule.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// How the text of a field is stored: a Text as one blank where it is empty and cut to its bytes, the others
/// as the number in it, 0 where there is none.
enum class FieldKind { Long, Integer, Currency, Text };

/// One field of a master screen.
struct MasterField {
    int index = 0;  ///< of ebox
    QString label;
    QString column;  ///< empty: on the screen only
    FieldKind kind = FieldKind::Text;
    int bytes = 0;
    int shownBytes = 0;  ///< the box's width where it differs
    ImeMode ime = ImeMode::Off;
    DisplayRule display = {};               ///< none: the plain text of the value
    QString note = {};                      ///< told behind the box
    std::optional<CodeLookup> lookup = {};  ///< at the screen's own code neither table nor name
    bool newColumn = false;                 ///< stands at the top of the next column of fields
};

/// The fields of a screen in the order of the walk.
using FieldTable = std::vector<MasterField>;

}  // namespace akarix
