#pragma once

#include <QString>
#include <array>

#include "platform/runtime/Currency.h"

namespace akarix {

/// One of the two kinds of capacity prices. A capacity has an index, counted in the kind's steps from 0; a
/// table shows ten indices to a row.
struct CapacityKind {
    int kubun;
    int gridRows;  ///< the head among them
    int rowStep;   ///< capacity from row to row
    int perUnit;   ///< indices to a capacity of 1
    int indices;   ///< how many prices are kept
    const char16_t* columnMark;
    const char16_t* name;

    Currency index(Currency capacity) const { return capacity * Currency(perUnit); }
    Currency capacity(int index) const { return Currency(index) / Currency(perUnit); }
    bool accepts(Currency capacity) const;
};

/// By option button: whole numbers for corporate customers, tenths for private ones.
extern const std::array<CapacityKind, 2> kCapacityKinds;
/// Null for a Kubun that is neither.
const CapacityKind* CapacityKindOf(int kubun);

/// The place of an index in a table of ten columns, counted from 0. What lies between two steps stands in the
/// row of its whole part and the column of the nearer step.
struct CapacityPlace {
    int row;
    int column;
};
CapacityPlace PlaceOf(Currency index);

}  // namespace akarix
