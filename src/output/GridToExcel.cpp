#include "output/EX.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/LongRun.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/Notice.h"
#include "platform/print/AskSavePath.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/GridExport.h"

namespace akarix {

void GridToExcel(const QString& title, const QString& line1, const QString& line2, const FlexGrid& grid) {
    const Date today = Today();
    const QString path = AskSavePath(title, u"%1_%2.xlsx"_s.arg(title, Format(today, u"yyyymmdd"_s)));
    if (path.isEmpty()) return;

    GridSource source;
    source.rows = grid.Rows();
    for (int column = 0; column < grid.Cols(); ++column) {
        source.widths.push_back(grid.ColWidth(column));
        source.alignments.push_back(grid.ColAlignment(column));
    }
    source.text = [&grid](int row, int column) { return grid.TextMatrix(row, column); };

    const QString subtitle = line1 + u"     "_s + line2;
    const QString created = u"作成日 : "_s + Format(today, u"yyyy/mm/dd"_s);
    LongRun run(title);
    try {
        if (WriteGridWorkbook(path, title, subtitle, created, source, run)) return NoticeWritten(path);
    } catch (const RuntimeError& error) {
        if (error.number() != CancelledByOperator) throw;
        return ShowNotice(u"中止しました。ファイルは書いていません。"_s);
    }
    MsgBox(u"ファイル '%1' に書き込めません。\n保存先を確かめて、もう一度行って下さい。"_s.arg(path), title);
}

}  // namespace akarix
