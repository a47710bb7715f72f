#include "store/PutContents.h"

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

void PutContents(const QString& sql, const QString& code, const QString& contents) {
    Recordset row = gDb->OpenRecordset(sql);
    if (row.Eof()) {
        row.AddNew();
        row.Fields(u"Code"_s) = ToLong(code);
    } else {
        row.Edit();
    }
    row.Fields(u"contents"_s) = EmptyToBlank(contents);
    row.Update();
    row.Close();
}

}  // namespace akarix
