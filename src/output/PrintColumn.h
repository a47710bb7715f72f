#pragma once

#include <QString>

#include "platform/runtime/Int16.h"
#include "platform/runtime/Literals.h"

namespace akarix {

/// One column of the detail rows.
struct PrintColumn {
    QString Title;
    QString Source;  ///< a field of the recordset, or "@3": the owner's alpha(3)
    QString Kind;    ///< "S" text, "N" number; any other ("D") repeats the text of the cell before
    QString Mask;    ///< "N": the number's format, "S": the width in characters, as digits
    Int16 Gap;       ///< twips behind the column
    bool WithTotal = false;
    Int16 Width;                            ///< twips; measured when the page is printed
    QString FontName = u"ＭＳ ゴシック"_s;  ///< empty: the font that is set
    Int16 FontSize = 10;                    ///< points; 0: the size that is set
    // When one of the two is not 0 the cell stands there, from the offsets and the detail rows' top.
    Int16 FixedX;
    Int16 FixedY;
};

}  // namespace akarix
