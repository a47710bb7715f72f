#pragma once

#include <QString>
#include <functional>
#include <map>

#include "platform/forms/Form.h"

namespace akarix {

/// Makes a test of every case in a folder's .desk files: plain texts of what somebody at the desk does, and
/// of what stands on the screen and in the store then. A test is called after its file and its case; each has
/// a fresh store and an empty desk.
///
///   # A remark. What stands above the first case is done at the beginning of each.
///   today 2023/04/15
///   sql INSERT INTO Rte(Code,Namae) VALUES(1,'北町')
///   view stored SELECT * FROM Rte WHERE Code=%1      (a question by name, see "rows")
///   fields slip ebox(0-3)+sNamae                     (some controls by one name, see "shows")
///   == NameOfTheCase
///   open MstRte_frm
///   type 1||DEL|北町              fills field after field, Enter behind each; DEL empties one first
///   in ebox(3) 5|6               the same from a field on, whose text is selected; "in X" alone goes there
///   put ebox(2-3) 北町|5          sets texts without going there
///   keys 12                      types without Enter
///   press Tab Shift+Backtab      key after key
///   click Btn(2)                 "double Btn(2)" is a double-click
///   cell List 2,0                a click into a grid; "cell List 2,0 7" types into that cell
///   click Btn(1) > yes 消します。   the dialogs that come of it: the answer to each, and what it says
///   focus ebox(0)                where the keyboard is; or behind what brings it there: "type 5 @ ebox(1)"
///   shows slip 1|||北町           texts, and 1 or 0 for a tick; or behind a step: "type 1 -> slip 1|||北町"
///   rows stored 1                or a whole SELECT; the rows wanted follow
///   : 1|北町|-                     short ones may stand behind it: "rows stored 1 : 1|北町|-"
///   grid List 0-2                the rows below the head, all columns or some; "row List 1 0-2 a|b|c" is one
///   : 1|北町|0
///
/// Dialogs: alert, yes, no, (of the reversed question) first, second, each with its text; error and a number;
/// pick DIALOG row,col in a lookup's list; save FILE and paper FILE, the answers where a workbook and a print
/// go; page PLACE|BUTTON in the preview; escape and close DIALOG. "templates" lays the paper's templates
/// beside the store ("shown": with the preview, "gone": takes them away); "paper FILE" reads what was
/// printed, a row for a page: the texts on it, and with "!" what is not. "open", "close", "at", "count",
/// "hidden", "visible", "closed" and "sheet" speak for themselves.
using DeskOpeners = std::map<QString, std::function<void(const QString& argument)>>;

template <class F>
void Opens(const QString& /*argument*/) {
    OpenScreen<F>();
}

/// \param openers what "open NAME ARGUMENT" does, by name.
bool RegisterDeskScripts(const QString& folder, DeskOpeners openers);

}  // namespace akarix
