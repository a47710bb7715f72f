#pragma once

#include "sample/Dice.h"

namespace akarix::sample {

/// Tariff patterns of the sample dealer.
enum Tariff { HouseTariff = 1, ApartmentTariff = 2, BusinessTariff = 3, BulkTariff = 4, PublicTariff = 5 };

constexpr int kTaxItem = 90;
constexpr int kHoseItem = 20;  ///< sold by the metre
constexpr int kTaxPercent = 10;

struct Item {
    int code;
    const char16_t* kana;
    const char16_t* name;
    int price;  ///< yen
};

/// The goods of the sample dealer; the tax line item is the last.
constexpr int kItemCount = 12;
const Item& ItemAt(int index);
/// How much of it a customer takes, in tenths.
int TakenTenths(const Item& item, Dice& dice);

struct CollectingBank {
    int code;
    int branches[3];
};
constexpr int kBankCount = 3;
constexpr int kPostOffice = 9900;
const CollectingBank& BankAt(int index);

/// Routes, tariffs, capacity prices, goods, consignors and the postal codes of the sample towns.
void FillMasters();

}  // namespace akarix::sample
