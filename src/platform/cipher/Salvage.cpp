#include "platform/cipher/Salvage.h"

#include <algorithm>
#include <limits>

#include "platform/cipher/SchemaCopy.h"
#include "platform/dialect/ColumnValue.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

QString TextOf(const StoreValue& value) {
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

int NumberOf(const StoreValue& value) {
    const auto* number = std::get_if<std::int64_t>(&value);
    return number ? static_cast<int>(*number) : 0;
}

// A row of the engine's schema (type, name, table, root, text) or of its copy (tag, name, root, text); an
// object without a root is not ours.
SalvagedObject ObjectOf(const StoreRow& row) {
    if (row.size() == 4 && TextOf(row[0]) == QLatin1String(kSchemaCopyTag))
        return {TextOf(row[1]), NumberOf(row[2]), TextOf(row[3]).toUtf8()};
    const bool isSchema = row.size() == 5 && !TextOf(row[1]).isEmpty() && !TextOf(row[2]).isEmpty() &&
                          (TextOf(row[0]) == u"table" || TextOf(row[0]) == u"index");
    const QString text = isSchema ? TextOf(row[4]) : QString();
    if (!isSchema || !(text.isEmpty() || text.startsWith(u"CREATE "))) return {};
    return {TextOf(row[1]), NumberOf(row[3]), text.toUtf8()};
}

/// Whether the column can have been given the value. The file counts characters, of which some are two here,
/// and rows older than a rule break it.
bool Fits(const ColumnDef& column, const StoreValue& value) {
    const int misfit = MisfitOf(column, value);
    if (misfit == 3163) return std::get<QString>(value).size() <= 2 * TextWidth(column);
    return misfit == 0 || misfit == 3314;
}

bool FitsTable(const TableDef& table, const StoreRow& row) {
    // A row written before a column was added has fewer values.
    if (row.empty() || row.size() > table.columns.size()) return false;
    for (std::size_t i = 0; i < row.size(); ++i)
        if (!Fits(table.columns[i], row[i])) return false;
    return true;
}

std::vector<StoreValue> KeyOf(const TableDef& table, const StoreRow& row) {
    std::vector<StoreValue> key;
    for (const QString& column : table.uniqueKeys.front()) {
        const auto at = static_cast<std::size_t>(table.indexOf(column));
        key.push_back(at < row.size() ? row[at] : StoreValue());
    }
    return key;
}

bool SameNumberOfValues(const TableDef& table, const std::vector<StoredRow>& rows) {
    return std::all_of(rows.begin(), rows.end(),
                       [&](const StoredRow& row) { return row.values.size() == table.columns.size(); });
}

}  // namespace

Salvage::Salvage(const PageImage& image) : image_(image) {
    readSchema();
}

void Salvage::readSchema() {
    for (int number = 1; number <= image_.pageCount(); ++number) {
        const BtreePage page(image_, number);
        if (page.kind() != BtreePage::Kind::LeafTable) continue;
        bool isSchemaPage = false;
        for (const StoredRow& row : page.rows()) {
            const SalvagedObject object = ObjectOf(row.values);
            if (object.root > 0) {
                isSchemaPage = true;
                objects_.emplace(object.name, object);
            }
        }
        if (isSchemaPage) visited_.insert(number);
    }
    std::erase_if(objects_,
                  [](const auto& entry) { return entry.first.startsWith(QLatin1String(kSchemaCopyTable)); });
}

std::map<QString, std::vector<StoredRow>> Salvage::rows(const Catalogue& catalogue) {
    trees_.clear();
    for (const TablePtr& table : catalogue.tables()) {
        Tree& tree = trees_.emplace_back();
        tree.table = table.get();
        const auto object = objects_.find(table->name);
        walkTable(tree, object == objects_.end() ? 0 : object->second.root, {kLeast, kMost});
        const auto index = objects_.find(u"sqlite_autoindex_%1_1"_s.arg(table->name));
        if (index != objects_.end() && !table->uniqueKeys.empty()) walkIndex(tree, index->second.root);
    }
    placeStrays();
    std::map<QString, std::vector<StoredRow>> all;
    for (Tree& tree : trees_)
        all[tree.table->name] = std::move(tree.rows);
    return all;
}

void Salvage::walkTable(Tree& tree, int number, Gap range) {
    const BtreePage page(image_, number);
    if (!page.isTable() || !visited_.insert(number).second) {
        tree.gaps.push_back(range);
        return;
    }
    for (StoredRow& row : page.rows())
        if (FitsTable(*tree.table, row.values)) tree.rows.push_back(std::move(row));
    for (const ChildPage& child : page.children()) {
        const std::int64_t highest = std::min(child.highest, range.upTo);
        walkTable(tree, child.page, {range.above, highest});
        range.above = highest;
    }
}

void Salvage::walkIndex(Tree& tree, int number) {
    const BtreePage page(image_, number);
    if (page.kind() == BtreePage::Kind::None || page.isTable() || !visited_.insert(number).second) return;
    for (StoredRow& entry : page.rows()) {
        if (entry.values.size() == static_cast<std::size_t>(tree.table->uniqueKeys.front().size()) + 1) {
            const auto* row = std::get_if<std::int64_t>(&entry.values.back());
            if (row) {
                const std::int64_t rowNumber = *row;
                entry.values.pop_back();
                tree.keys.emplace(rowNumber, std::move(entry.values));
            }
        }
    }
    for (const ChildPage& child : page.children())
        walkIndex(tree, child.page);
}

void Salvage::placeStrays() {
    for (int number = 1; number <= image_.pageCount(); ++number) {
        const BtreePage page(image_, number);
        if (page.kind() != BtreePage::Kind::LeafTable || visited_.contains(number)) continue;
        std::vector<StoredRow> rows = page.rows();
        if (Tree* owner = rows.empty() ? nullptr : ownerOf(rows))
            std::move(rows.begin(), rows.end(), std::back_inserter(owner->rows));
    }
}

Salvage::Tree* Salvage::ownerOf(const std::vector<StoredRow>& rows) {
    std::vector<Tree*> candidates;
    for (Tree& tree : trees_) {
        const bool hasRoom = std::any_of(tree.gaps.begin(), tree.gaps.end(), [&](const Gap& gap) {
            return (gap.above == kLeast || rows.front().number > gap.above) && rows.back().number <= gap.upTo;
        });
        if (hasRoom && std::all_of(rows.begin(), rows.end(),
                                   [&](const StoredRow& row) { return FitsTable(*tree.table, row.values); }))
            candidates.push_back(&tree);
    }
    const auto keepOnly = [&](auto condition) {
        if (candidates.size() > 1 && std::any_of(candidates.begin(), candidates.end(), condition))
            std::erase_if(candidates, [&](Tree* tree) { return !condition(tree); });
    };
    int mostKnown = 0;
    for (const Tree* tree : candidates)
        mostKnown = std::max(mostKnown, knownByKey(*tree, rows));
    keepOnly([&](Tree* tree) { return mostKnown > 0 && knownByKey(*tree, rows) == mostKnown; });
    keepOnly([&](Tree* tree) { return SameNumberOfValues(*tree->table, rows); });
    return candidates.size() == 1 ? candidates.front() : nullptr;
}

int Salvage::knownByKey(const Tree& tree, const std::vector<StoredRow>& rows) const {
    if (tree.keys.empty()) return 0;
    return static_cast<int>(std::count_if(rows.begin(), rows.end(), [&](const StoredRow& row) {
        const auto known = tree.keys.find(row.number);
        return known != tree.keys.end() && known->second == KeyOf(*tree.table, row.values);
    }));
}

}  // namespace akarix
