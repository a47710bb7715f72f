#pragma once

#include <cstdint>
#include <vector>

#include "platform/runtime/Currency.h"
#include "sample/Dice.h"

namespace akarix::sample {

/// What the months need to know of a customer.
struct Customer {
    std::int32_t code = 0;
    int route = 0;  ///< from 0
    int tariff = 0;
    int closingDay = 31;
    int bank = 0;  ///< 0: pays at the counter or by transfer
    int paymentClass = 1;
    int usualTenths = 0;   ///< use of an average month, in tenths of a cubic metre
    int meterTenths = 0;   ///< present reading
    int openingYen = 0;    ///< balance brought into the first month; 0 for none
    bool takesGas = true;  ///< a few buy goods alone
};

/// Writes the customers and gives what the months need of them.
std::vector<Customer> FillCustomers(int count, Dice& dice);

}  // namespace akarix::sample
