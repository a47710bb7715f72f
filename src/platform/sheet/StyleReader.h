#pragma once

#include <functional>
#include <pugixml.hpp>
#include <vector>

#include "platform/sheet/Sheet.h"

namespace akarix {

struct WorkbookStyles {
    std::vector<CellStyle> cells;  ///< never empty; a cell's style is an index into these
    SheetFont normal;              ///< the font that column widths are counted in
    std::function<SheetFont(const pugi::xml_node&)> readFont;  ///< of a part of a cell's text
};

/// Reads a workbook's style part; the theme gives the colours that styles name by number. Empty documents are
/// taken as a workbook without styles.
WorkbookStyles ReadStyles(const pugi::xml_document& styles, const pugi::xml_document& theme);

}  // namespace akarix
