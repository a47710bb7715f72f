#pragma once

#include <QString>

namespace akarix {

/// Asks where to save a file ("SaveAs_frm": the box "Path", the buttons "Save" and "Cancel"), proposing a
/// free name in the documents folder. Gives an absolute path that could be written, or an empty text on
/// cancel. \param name without folder, e.g. "請求一覧_20230415.xlsx"
QString AskSavePath(const QString& caption, const QString& name);

}  // namespace akarix
