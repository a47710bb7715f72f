#pragma once

#include <QString>

#include "sample/Dice.h"

namespace akarix::sample {

/// A name and its reading in half-width kana, as a debit file wants it (no small kana, a hyphen for a long
/// sound).
struct ReadName {
    QString name;
    QString kana;
};

enum class Premises {
    House = 7,
    Apartment = 6,
    Restaurant = 4,
    Hall = 3,
    Hospital = 2,
    School = 1,
    Other = 5
};

struct Town {
    const char16_t* name;
    const char16_t* zip;
};

constexpr int kRouteCount = 6;
constexpr int kTownsOfRoute = 3;

ReadName PersonName(Dice& dice);
ReadName BusinessName(Dice& dice, Premises premises);
const Town& TownOf(int route, int index);
QString TownAddress(const Town& town);

}  // namespace akarix::sample
