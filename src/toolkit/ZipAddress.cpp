#include "toolkit/ZipAddress.h"

#include "store/Lookup.h"
#include "values/Text.h"

namespace akarix {

void FillAddressFromZip(const QString& zip, TextBox& addressBox) {
    const QString address = AddressOfZip(zip);
    if (!address.isEmpty() && !HasText(addressBox.Text())) addressBox.SetText(address);
}

}  // namespace akarix
