#include "platform/runtime/NumberOf.h"

#include "platform/runtime/Text.h"

namespace akarix {

namespace {

/// Takes signs, parentheses and the currency sign off both ends; each may stand once.
class Trimmings {
 public:
    explicit Trimmings(QString text) : rest_(std::move(text)) {}

    bool strip() {
        while (!rest_.isEmpty() && stripFront(rest_.front()))
            dropFront();
        while (!rest_.isEmpty() && !broken_ && stripBack(rest_.back()))
            dropBack();
        return !broken_ && parenthesis_ != 1;
    }
    bool negative() const { return minus_ || parenthesis_ == 2; }
    const QString& rest() const { return rest_; }

 private:
    bool stripFront(QChar c) {
        if (broken_) return false;
        if (c == u'+' || c == u'-') return sign(c);
        if (c == u'\\') return once(currency_);
        if (c != u'(') return false;
        broken_ = broken_ || signed_ || parenthesis_ != 0;
        parenthesis_ = 1;
        return true;
    }
    bool stripBack(QChar c) {
        if (c == u'+' || c == u'-') return sign(c);
        if (c == u'\\') return once(currency_);
        if (c != u')') return false;
        broken_ = broken_ || parenthesis_ != 1;
        parenthesis_ = 2;
        return true;
    }
    bool sign(QChar c) {
        minus_ = c == u'-';
        broken_ = broken_ || parenthesis_ != 0;
        return once(signed_);
    }
    bool once(bool& seen) {
        broken_ = broken_ || seen;
        seen = true;
        return true;
    }
    void dropFront() { rest_ = rest_.mid(1).trimmed(); }
    void dropBack() {
        rest_.chop(1);
        rest_ = rest_.trimmed();
    }

    QString rest_;
    bool minus_ = false;
    bool signed_ = false;
    bool currency_ = false;
    bool broken_ = false;
    int parenthesis_ = 0;  // 1 opened, 2 closed again
};

/// Thousands marks may stand anywhere behind the first digit and before the point.
std::optional<QString> WithoutThousands(const QString& text) {
    QString plain;
    bool marksAllowed = false;
    for (QChar c : text) {
        if (c == u',') {
            if (!marksAllowed) return std::nullopt;
            continue;
        }
        const bool digit = c >= u'0' && c <= u'9';
        if (plain.isEmpty()) marksAllowed = digit;
        if (!digit) marksAllowed = false;
        plain += c;
    }
    return plain;
}

}  // namespace

std::optional<Decimal> ReadNumberText(const QString& text) {
    if (auto whole = Decimal::fromDigits(text)) return whole;
    const QString s = StrConv(text, NarrowChars).trimmed();
    Trimmings trimmings(s);
    if (!trimmings.strip()) return std::nullopt;
    if (trimmings.rest().startsWith(u'+') || trimmings.rest().startsWith(u'-')) return std::nullopt;
    const auto plain = WithoutThousands(trimmings.rest());
    if (!plain) return std::nullopt;
    auto decimal = Decimal::fromPlain(*plain);
    if (decimal && !decimal->isZero()) decimal->negative = trimmings.negative();
    return decimal;
}

}  // namespace akarix
