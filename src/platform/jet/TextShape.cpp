#include "platform/jet/TextShape.h"

#include "platform/jet/Scanning.h"

namespace akarix {
namespace {

constexpr char16_t kLiteral = 0x1e;

}  // namespace

bool TextShape::read(QStringView sql) {
    literals_.clear();
    // A literal of one digit needs two places.
    key_.resize(sql.size() * 2);
    QChar* out = key_.data();
    qsizetype place = 0;
    const auto copyTo = [&](qsizetype end) {
        out = std::copy(sql.begin() + place, sql.begin() + end, out);
        place = end;
    };
    while (place < sql.size()) {
        if (sql[place] == u' ') {
            *out++ = sql[place++];
        } else if (const qsizetype end = nameEnd(sql, place); end > place) {
            copyTo(end);
        } else if (beginsLiteral(sql, place)) {
            std::optional<ScannedLiteral> scanned = scanLiteral(sql, place);
            if (!scanned) return false;
            *out++ = QChar(kLiteral);
            *out++ = QChar(static_cast<char16_t>(u'0' + static_cast<int>(scanned->literal.kind)));
            literals_.push_back(std::move(scanned->literal));
            place = scanned->end;
        } else if (sql[place] == u'[') {
            const qsizetype close = sql.indexOf(u']', place);
            if (close < 0) return false;
            copyTo(close + 1);
        } else {
            if (sql[place] == kLiteral) return false;
            copyTo(place + 1);
        }
    }
    key_.truncate(out - key_.constData());
    return true;
}

}  // namespace akarix
