#include "platform/cipher/BtreePage.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <optional>

namespace akarix {
namespace {

constexpr int kUsable = kPageSize - kPageTail;
constexpr int kFileHeader = 100;
constexpr int kLeafHeader = 8;
constexpr int kInnerHeader = 12;
constexpr std::int64_t kMostPayload = 64LL * 1024 * 1024;

std::uint64_t BigEndian(const QByteArray& data, int offset, int bytes) {
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i) {
        const int at = offset + i;
        value = (value << 8) | (at < data.size() ? static_cast<std::uint8_t>(data[at]) : 0U);
    }
    return value;
}

// Reads on from the offset and moves it behind.
std::int64_t Varint(const QByteArray& data, int& offset) {
    std::uint64_t value = 0;
    for (int i = 0; i < 9; ++i) {
        const auto byte = BigEndian(data, offset++, 1);
        if (i == 8) return static_cast<std::int64_t>((value << 8) | byte);
        value = (value << 7) | (byte & 0x7fU);
        if ((byte & 0x80U) == 0) break;
    }
    return static_cast<std::int64_t>(value);
}

std::int64_t SignedOf(std::uint64_t value, int bytes) {
    const int unused = 64 - 8 * bytes;
    return static_cast<std::int64_t>(value << unused) >> unused;
}

// How much of a payload stands on the page itself.
int LocalBytes(std::int64_t size, bool table) {
    const int most = table ? kUsable - 35 : (kUsable - 12) * 64 / 255 - 23;
    if (size <= most) return static_cast<int>(size);
    const int least = (kUsable - 12) * 32 / 255 - 23;
    const int fitting = least + static_cast<int>((size - least) % (kUsable - 4));
    return fitting <= most ? fitting : least;
}

struct SerialType {
    std::int64_t code;

    int bytes() const {
        constexpr int kFixed[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
        return code < 10 ? kFixed[code] : static_cast<int>((code - 12) / 2);
    }
    bool isText() const { return code >= 13 && code % 2 == 1; }
    bool isKnown() const { return (code >= 0 && code <= 9) || isText(); }
};

StoreValue ValueOf(SerialType type, const QByteArray& record, int offset) {
    switch (type.code) {
        case 0:
            return std::monostate{};
        case 7:
            return std::bit_cast<double>(BigEndian(record, offset, 8));
        case 8:
            return std::int64_t{0};
        case 9:
            return std::int64_t{1};
        default:
            break;
    }
    if (type.isText()) return QString::fromUtf8(record.mid(offset, type.bytes()));
    return SignedOf(BigEndian(record, offset, type.bytes()), type.bytes());
}

std::optional<StoreRow> ValuesOf(const QByteArray& record) {
    int at = 0;
    const std::int64_t headerSize = Varint(record, at);
    if (headerSize < at || headerSize > record.size()) return std::nullopt;
    StoreRow values;
    auto body = static_cast<int>(headerSize);
    while (at < headerSize) {
        const SerialType type{Varint(record, at)};
        if (!type.isKnown() || type.bytes() > record.size() - body) return std::nullopt;
        values.push_back(ValueOf(type, record, body));
        body += type.bytes();
    }
    return values;
}

}  // namespace

BtreePage::BtreePage(const PageImage& image, int number)
    : image_(image), data_(image.page(number)), header_(number == 1 ? kFileHeader : 0) {
    if (data_.isEmpty()) return;
    switch (const auto type = static_cast<int>(BigEndian(data_, header_, 1))) {
        case 2:
        case 5:
        case 10:
        case 13:
            kind_ = static_cast<Kind>(type);
            break;
        default:
            break;
    }
}

std::vector<int> BtreePage::cells() const {
    const auto count = static_cast<int>(BigEndian(data_, header_ + 3, 2));
    const int first = header_ + (isInner() ? kInnerHeader : kLeafHeader);
    std::vector<int> offsets;
    for (int i = 0; i < count && first + 2 * i + 2 <= kUsable; ++i) {
        const auto offset = static_cast<int>(BigEndian(data_, first + 2 * i, 2));
        if (offset >= first && offset < kUsable) offsets.push_back(offset);
    }
    return offsets;
}

std::vector<StoredRow> BtreePage::rows() const {
    std::vector<StoredRow> all;
    if (kind_ == Kind::None || kind_ == Kind::InnerTable) return all;
    for (const int offset : cells()) {
        StoredRow row;
        if (readRow(offset, row)) all.push_back(std::move(row));
    }
    return all;
}

bool BtreePage::readRow(int offset, StoredRow& row) const {
    int at = offset + (kind_ == Kind::InnerIndex ? 4 : 0);
    const std::int64_t size = Varint(data_, at);
    if (kind_ == Kind::LeafTable) row.number = Varint(data_, at);
    auto values = ValuesOf(payload(at, size));
    if (!values) return false;
    row.values = std::move(*values);
    return true;
}

QByteArray BtreePage::payload(int offset, std::int64_t size) const {
    if (size < 1 || size > kMostPayload) return {};
    const int local = LocalBytes(size, isTable());
    if (offset + local > kUsable) return {};
    QByteArray bytes = data_.mid(offset, local);
    auto next = local < size ? static_cast<int>(BigEndian(data_, offset + local, 4)) : 0;
    while (bytes.size() < size) {
        const QByteArray& overflow = image_.page(next);
        if (overflow.isEmpty()) return {};
        bytes += overflow.mid(4, std::min<qsizetype>(size - bytes.size(), kUsable - 4));
        next = static_cast<int>(BigEndian(overflow, 0, 4));
    }
    return bytes;
}

std::vector<ChildPage> BtreePage::children() const {
    std::vector<ChildPage> all;
    if (!isInner()) return all;
    for (const int offset : cells()) {
        int at = offset + 4;
        const auto page = static_cast<int>(BigEndian(data_, offset, 4));
        all.push_back({page, kind_ == Kind::InnerTable ? Varint(data_, at) : 0});
    }
    all.push_back(
        {static_cast<int>(BigEndian(data_, header_ + 8, 4)), std::numeric_limits<std::int64_t>::max()});
    return all;
}

}  // namespace akarix
