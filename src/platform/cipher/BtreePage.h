#pragma once

#include <cstdint>
#include <vector>

#include "platform/cipher/PageImage.h"
#include "platform/dialect/StoreValue.h"

namespace akarix {

/// A row as a tree of the file holds it. In a tree of an index the row's number is the last value instead.
struct StoredRow {
    std::int64_t number = 0;
    StoreRow values;
};

/// A child of an inner page and the highest row number it may hold.
struct ChildPage {
    int page = 0;
    std::int64_t highest = 0;
};

/// Reads one page of a tree by the published file format of the engine (sqlite.org/fileformat2.html). What
/// makes no sense, or runs into a lost page, is left out.
class BtreePage {
 public:
    enum class Kind { None, InnerIndex = 2, InnerTable = 5, LeafIndex = 10, LeafTable = 13 };

    BtreePage(const PageImage& image, int number);

    Kind kind() const { return kind_; }
    bool isTable() const { return kind_ == Kind::InnerTable || kind_ == Kind::LeafTable; }
    /// Rows of a leaf, entries of either kind of index page.
    std::vector<StoredRow> rows() const;
    std::vector<ChildPage> children() const;

 private:
    bool isInner() const { return kind_ == Kind::InnerIndex || kind_ == Kind::InnerTable; }
    std::vector<int> cells() const;
    bool readRow(int offset, StoredRow& row) const;
    QByteArray payload(int offset, std::int64_t size) const;

    const PageImage& image_;
    const QByteArray& data_;
    int header_;
    Kind kind_ = Kind::None;
};

}  // namespace akarix
