#include "platform/dialect/TextShape.h"

#include "platform/dialect/Scanning.h"

namespace akarix {
namespace {

constexpr char16_t kLiteral = 0x1e;

QChar KindMark(Literal::Kind kind) {
    return QChar(static_cast<char16_t>(u'0' + static_cast<int>(kind)));
}

}  // namespace

bool TextShape::read(QStringView sql) {
    literals_.clear();
    if (sql.contains(QChar(kLiteral))) return false;
    // A literal of one digit needs two places.
    key_.resize(sql.size() * 2);
    QChar* out = key_.data();
    const auto keep = [&](Literal literal) {
        *out++ = QChar(kLiteral);
        *out++ = KindMark(literal.kind);
        literals_.push_back(std::move(literal));
    };
    for (qsizetype place = 0;;) {
        out = CopyPlain(sql, place, out);
        if (place >= sql.size()) break;
        if (sql[place] == u'[') {
            const qsizetype close = sql.indexOf(u']', place);
            if (close < 0) return false;
            out = std::copy(sql.begin() + place, sql.begin() + close + 1, out);
            place = close + 1;
        } else if (const auto whole = ScanWholeNumeral(sql, place)) {
            keep({Literal::Kind::Integer, whole->value});
            place = whole->end;
        } else {
            std::optional<ScannedLiteral> scanned = ScanLiteral(sql, place);
            if (!scanned) return false;
            keep(std::move(scanned->literal));
            place = scanned->end;
        }
    }
    key_.truncate(out - key_.constData());
    return true;
}

}  // namespace akarix
