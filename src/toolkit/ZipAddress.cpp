#include "toolkit/ZipAddress.h"

#include "store/dbAccess.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

void FillAddressFromZip(const QString& zip, TextBox& addressBox) {
    Recordset found =
        gDb->OpenRecordset(QStringLiteral("SELECT Addr FROM Zip7 WHERE Code=") + KeepDigits(zip));
    if (!found.Eof() && !HasText(addressBox.Text())) {
        addressBox.SetText(NullToEmpty(found[QStringLiteral("Addr")]));
    }
}

}  // namespace akarix
