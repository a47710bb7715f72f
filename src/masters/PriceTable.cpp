#include "masters/PriceTable.h"

#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

// A fraction of a yen is rounded here and dropped on the bill: a price of the table may be a yen higher.
QString Price(Currency charge) {
    return Format(charge, u"#,###"_s);
}

std::size_t CellOf(int place) {
    return static_cast<std::size_t>(place) + 1;
}

}  // namespace

PriceTable::Row PriceTable::Heads(bool whole) {
    Row heads;
    for (int place = 0; place < kPrices; ++place)
        heads[CellOf(place)] = (whole ? QString() : u"."_s) + QString::number(place);
    return heads;
}

void PriceTable::Clear() {
    rows_.clear();
    column_ = 0;
}

PriceTable::Row& PriceTable::beginRow(int usage) {
    Row& row = rows_.emplace_back();
    row[0] = QString::number(usage);
    return row;
}

void PriceTable::AddTenths(const TariffBand& band) {
    column_ = 0;
    for (int n = band.st; n <= band.ed; ++n) {
        Row& row = beginRow(n);
        for (int tenth = 0; tenth < kPrices; ++tenth) {
            const Currency above = Currency(n - band.st) + Currency(tenth) / Currency(10);
            row[CellOf(tenth)] = Price(band.kihon + above * band.tanka);
        }
    }
}

void PriceTable::AddWhole(const TariffBand& band) {
    for (int n = band.st; n <= band.ed; ++n) {
        Row& row = column_ == 0 ? beginRow(n) : rows_.back();
        // The whole usage, not what lies above the band's start: a band that does not start at 0 is priced
        // higher here than it is billed, and dealers know this table so.
        row[CellOf(column_)] = Price(band.kihon + Currency(n) * band.tanka);
        column_ = (column_ + 1) % kPrices;
    }
}

}  // namespace akarix
