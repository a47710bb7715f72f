#pragma once

#include <QString>
#include <array>
#include <vector>

#include "platform/runtime/Currency.h"

namespace akarix {

/// A usage band of a tariff; both ends belong to it.
struct TariffBand {
    std::int16_t st = 0;
    std::int16_t ed = 0;
    Currency kihon;
    Currency tanka;
};

/// The printed price table: the charges of tariff bands by usage, ten to a row. A table holds bands laid out
/// by tenths, or by whole units, or one after the other.
class PriceTable {
 public:
    static constexpr int kPrices = 10;
    /// The usage a row begins with, then its charges.
    using Row = std::array<QString, kPrices + 1>;

    /// The head above rows of tenths, or of whole units.
    static Row Heads(bool whole);

    const std::vector<Row>& Rows() const { return rows_; }
    void Clear();
    /// A row for each whole usage of the band, its charges going up by a tenth.
    void AddTenths(const TariffBand& band);
    /// A charge for each whole usage of the band, running on in the row where the band before it ended.
    void AddWhole(const TariffBand& band);

 private:
    Row& beginRow(int usage);

    std::vector<Row> rows_;
    int column_ = 0;  ///< the running place in the last row; 0 begins a new one
};

}  // namespace akarix
