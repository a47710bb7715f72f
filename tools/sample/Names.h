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

constexpr int routeCount = 6;
constexpr int townsOfRoute = 3;

ReadName personName(Dice& dice);
ReadName businessName(Dice& dice, Premises premises);
const Town& townOf(int route, int index);
QString townAddress(const Town& town);

}  // namespace akarix::sample
