#include "platform/dao/Recordset.h"

#include <algorithm>
#include <utility>

#include "platform/dao/Conversion.h"
#include "platform/dao/Criteria.h"
#include "platform/dao/Session.h"
#include "platform/runtime/Literals.h"

namespace akarix {

/// The state of a recordset: its rows once they were needed, the place in them, and the row being written.
struct RecordsetState {
    enum class Editing { No, New, Present };

    RecordsetState(std::shared_ptr<Session> ofSession, BoundText ofText)
        : session(std::move(ofSession)), text(std::move(ofText)) {}

    void requireOpen() const;
    /// Reads the rows at the first need.
    void load();
    bool hasRow() const { return position >= 0 && position < count(); }
    const std::vector<ResultColumn>& columns() const { return text.statement->query()->columns; }
    int width() const { return static_cast<int>(columns().size()); }
    int count() const { return static_cast<int>(rows.size()); }
    void requireRow();
    void moveTo(int index);

    /// The table behind, when the rows can be written; 3027 when they cannot.
    const TableDef& table();
    const ColumnDef& storedColumn(int index);
    int indexOf(const QString& name) const;
    const ResultColumn& column(int index) const { return columns()[static_cast<std::size_t>(index)]; }

    Field& field(int index);
    Variant value(int index);
    void setValue(int index, const Variant& value);
    void startNew();
    void insertNew();
    void updatePresent();

    std::shared_ptr<Session> session;
    BoundText text;
    bool open = true;
    bool loaded = false;
    TablePtr behind;  ///< as found in the catalogue of that version
    int behindVersion = 0;
    std::vector<StoreRow> rows;
    int position = 0;
    int seen = 0;  ///< rows the caller has come past, as RecordCount tells them
    bool noMatch = false;
    Editing editing = Editing::No;
    StoreRow buffer;              ///< the row being written, as Fields show it
    std::vector<bool> written;    ///< its columns that were set
    std::vector<StoreRow> added;  ///< before the rows were read
    std::vector<Field> fields;    ///< made at the first need
};

namespace {

[[noreturn]] void Raise(int number, const QString& detail = QString()) {
    throw StoreError(number, detail, u"DAO.Recordset"_s);
}

std::int64_t RowNumber(const StoreRow& row) {
    return std::get<std::int64_t>(row.back());
}

// The columns set, by their stored names, with their values.
std::pair<std::vector<QString>, StoreRow> Written(const std::vector<ResultColumn>& columns,
                                                  const std::vector<bool>& written, const StoreRow& buffer) {
    std::pair<std::vector<QString>, StoreRow> set;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (!written[i]) continue;
        set.first.push_back(columns[i].column);
        set.second.push_back(buffer[i]);
    }
    return set;
}

}  // namespace

void RecordsetState::requireOpen() const {
    if (!open || !session->isOpen()) Raise(3420);
}

void RecordsetState::load() {
    requireOpen();
    if (loaded) return;
    rows = session->engine().rows(text);
    loaded = true;
    for (StoreRow& row : added) {
        std::erase_if(rows, [&](const StoreRow& other) { return RowNumber(other) == RowNumber(row); });
        rows.push_back(std::move(row));
    }
    added.clear();
    seen = std::min(count(), 1);
}

void RecordsetState::requireRow() {
    load();
    if (!hasRow()) Raise(3021);
}

void RecordsetState::moveTo(int index) {
    editing = Editing::No;
    position = std::clamp(index, -1, count());
    seen = std::max(seen, std::min(position + 1, count()));
}

const TableDef& RecordsetState::table() {
    const Engine& engine = session->engine();
    if (!behind || behindVersion != engine.catalogue().version()) {
        const BoundQuery& query = *text.statement->query();
        behind = query.updatable() ? engine.catalogue().find(query.rows.tables.front()->definition->name)
                                   : nullptr;
        behindVersion = engine.catalogue().version();
    }
    if (!behind) Raise(3027);
    return *behind;
}

const ColumnDef& RecordsetState::storedColumn(int index) {
    const QString& name = column(index).column;
    const TableDef& definition = table();
    const int stored = name.isEmpty() ? -1 : definition.indexOf(name);
    if (stored < 0) Raise(3164, column(index).name);
    return definition.at(stored);
}

int RecordsetState::indexOf(const QString& name) const {
    const auto at = [&](Qt::CaseSensitivity sensitivity) {
        const auto found = std::find_if(columns().begin(), columns().end(), [&](const ResultColumn& column) {
            return sensitivity == Qt::CaseSensitive ? column.name == name
                                                    : column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        return found == columns().end() ? -1 : static_cast<int>(found - columns().begin());
    };
    // Most callers spell a column as its table does, which is quickly told.
    int index = at(Qt::CaseSensitive);
    if (index < 0) index = at(Qt::CaseInsensitive);
    if (index >= 0) return index;
    Raise(3265, name);
}

Field& RecordsetState::field(int index) {
    // Many a recordset is only asked for its values and needs none of them.
    if (fields.empty())
        for (int i = 0; i < width(); ++i)
            fields.push_back(Field(this, i));
    return fields[static_cast<std::size_t>(index)];
}

Variant RecordsetState::value(int index) {
    requireOpen();
    const auto at = static_cast<std::size_t>(index);
    if (editing == Editing::No) requireRow();
    const StoreRow& row = editing == Editing::No ? rows[static_cast<std::size_t>(position)] : buffer;
    return VariantOf(column(index).type, row[at]);
}

void RecordsetState::setValue(int index, const Variant& value) {
    requireOpen();
    if (editing == Editing::No) Raise(3020);
    const auto at = static_cast<std::size_t>(index);
    buffer[at] = StoredAs(storedColumn(index), value);
    written[at] = true;
}

void RecordsetState::startNew() {
    const TableDef& definition = table();
    buffer.assign(columns().size() + 1, StoreValue());
    for (std::size_t i = 0; i < columns().size(); ++i) {
        const int stored = definition.indexOf(columns()[i].column);
        if (stored >= 0 && definition.at(stored).zeroDefault) buffer[i] = std::int64_t{0};
    }
    written.assign(columns().size(), false);
    editing = Editing::New;
}

void RecordsetState::insertNew() {
    const auto [names, values] = Written(columns(), written, buffer);
    buffer.back() = session->engine().insertRow(table(), names, values);
    editing = Editing::No;
    if (!loaded) {
        added.push_back(buffer);
        return;
    }
    const bool atEnd = position == count();
    rows.push_back(buffer);
    if (atEnd) position = count();
    seen = std::max(seen, 1);
}

void RecordsetState::updatePresent() {
    const auto [names, values] = Written(columns(), written, buffer);
    session->engine().updateRow(table(), RowNumber(buffer), names, values);
    editing = Editing::No;
    rows[static_cast<std::size_t>(position)] = buffer;
}

Recordset::Recordset(std::shared_ptr<Session> session, BoundText text)
    : state_(std::make_unique<RecordsetState>(std::move(session), std::move(text))) {}

Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::Eof() const {
    state_->load();
    return state_->rows.empty() || state_->position >= state_->count();
}

bool Recordset::Bof() const {
    state_->load();
    return state_->rows.empty() || state_->position < 0;
}

int Recordset::RecordCount() const {
    state_->load();
    return state_->seen;
}

void Recordset::MoveFirst() {
    state_->load();
    if (state_->rows.empty()) Raise(3021);
    state_->moveTo(0);
}

void Recordset::MoveLast() {
    state_->load();
    if (state_->rows.empty()) Raise(3021);
    state_->moveTo(state_->count() - 1);
}

void Recordset::MoveNext() {
    if (Eof()) Raise(3021);
    state_->moveTo(state_->position + 1);
}

void Recordset::MovePrevious() {
    if (Bof()) Raise(3021);
    state_->moveTo(state_->position - 1);
}

void Recordset::FindFirst(const QString& criteria) {
    state_->load();
    state_->editing = RecordsetState::Editing::No;
    const Criteria condition(criteria, state_->columns());
    const auto found = std::find_if(state_->rows.begin(), state_->rows.end(),
                                    [&](const StoreRow& row) { return condition.matches(row); });
    state_->noMatch = found == state_->rows.end();
    if (!state_->noMatch) state_->moveTo(static_cast<int>(found - state_->rows.begin()));
}

bool Recordset::NoMatch() const {
    state_->requireOpen();
    return state_->noMatch;
}

int Recordset::FieldCount() const {
    state_->requireOpen();
    return state_->width();
}

Field& Recordset::Fields(const QString& name) {
    state_->requireOpen();
    return state_->field(state_->indexOf(name));
}

Field& Recordset::Fields(int index) {
    state_->requireOpen();
    if (index < 0 || index >= FieldCount()) Raise(3265);
    return state_->field(index);
}

Variant Recordset::operator[](const QString& name) const {
    state_->requireOpen();
    return state_->value(state_->indexOf(name));
}

void Recordset::AddNew() {
    state_->requireOpen();
    state_->startNew();
}

void Recordset::Edit() {
    state_->requireOpen();
    state_->table();
    state_->requireRow();
    state_->buffer = state_->rows[static_cast<std::size_t>(state_->position)];
    state_->written.assign(state_->columns().size(), false);
    state_->editing = RecordsetState::Editing::Present;
}

void Recordset::Update() {
    state_->requireOpen();
    const bool isNew = state_->editing == RecordsetState::Editing::New;
    if (state_->editing == RecordsetState::Editing::No) Raise(3020);
    if (isNew)
        state_->insertNew();
    else
        state_->updatePresent();
}

void Recordset::Close() {
    state_->requireOpen();
    state_->open = false;
    state_->rows.clear();
}

const QString& Field::Name() const {
    return state_->column(index_).name;
}

FieldType Field::Type() const {
    return state_->column(index_).type;
}

int Field::Size() const {
    const ResultColumn& column = state_->column(index_);
    return column.type == FieldType::Text ? column.size : FormOf(column.type).bytes;
}

Variant Field::Value() const {
    return state_->value(index_);
}

void Field::SetValue(const Variant& value) {
    state_->setValue(index_, value);
}

}  // namespace akarix
