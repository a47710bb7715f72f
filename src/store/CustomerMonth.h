#pragma once

#include <QString>
#include <cstdint>

namespace akarix {

/// The condition that picks what one customer has in a month, in whichever table.
QString OfCustomerMonth(std::int32_t deal, int nendo, int getudo);
/// The same from texts that a caller has at hand.
QString OfCustomerMonth(const QString& deal, const QString& nendo, const QString& getudo);

}  // namespace akarix
