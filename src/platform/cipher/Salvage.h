#pragma once

#include <map>
#include <set>
#include <vector>

#include "platform/cipher/BtreePage.h"
#include "platform/dialect/Schema.h"

namespace akarix {

/// A table or the index of a key as the schema of a damaged file names it.
struct SalvagedObject {
    QString name;
    int root = 0;
    QByteArray text;  ///< CREATE TABLE or CREATE INDEX; empty for the index of a key
};

/// Finds the rows of a damaged file by its tables. Trees are walked from their roots; leaves that no readable
/// inner page leads to are given to the one table they can have come from: one whose tree has a gap for
/// their row numbers, whose columns their rows fit, and, where that leaves a choice, whose key index knows
/// them. A leaf that could still be of two tables is left out: a lost row is noticed, a wrong one is not.
class Salvage {
 public:
    explicit Salvage(const PageImage& image);

    /// By name; empty when nothing of the schema is left.
    const std::map<QString, SalvagedObject>& objects() const { return objects_; }

    /// The rows of each table of the catalogue, by its name.
    std::map<QString, std::vector<StoredRow>> rows(const Catalogue& catalogue);

 private:
    struct Gap {
        std::int64_t above;
        std::int64_t upTo;
    };
    struct Tree {
        const TableDef* table = nullptr;
        std::vector<StoredRow> rows;
        std::vector<Gap> gaps;
        std::map<std::int64_t, StoreRow> keys;  ///< by row number, from the index of the first key
    };

    void readSchema();
    void walkTable(Tree& tree, int page, Gap range);
    void walkIndex(Tree& tree, int page);
    void placeStrays();
    Tree* ownerOf(const std::vector<StoredRow>& rows);
    int knownByKey(const Tree& tree, const std::vector<StoredRow>& rows) const;

    const PageImage& image_;
    std::map<QString, SalvagedObject> objects_;
    std::vector<Tree> trees_;
    std::set<int> visited_;
};

}  // namespace akarix
