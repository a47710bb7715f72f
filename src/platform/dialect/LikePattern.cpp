#include "platform/dialect/LikePattern.h"

#include "platform/dialect/TextFold.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

// Only the half-width signs are wildcards. In a folded pattern their full-width counterparts, which stand for
// themselves, hide behind code points that no text has.
const QString kWideSigns = u"＊？＃［］！－−"_s;
constexpr char16_t kSigns[] = u"*?#[]!--";
constexpr char16_t kFirstHidden = 0xFDD0;

QString FoldedPattern(QString pattern) {
    for (QChar& c : pattern) {
        const qsizetype sign = kWideSigns.indexOf(c);
        if (sign >= 0) c = QChar(static_cast<char16_t>(kFirstHidden + sign));
    }
    return FoldText(pattern);
}

/// A character of a folded pattern as it stands in a folded text.
char16_t Meant(QChar c) {
    const int hidden = c.unicode() - kFirstHidden;
    return hidden >= 0 && hidden < kWideSigns.size() ? kSigns[hidden] : c.unicode();
}

/// One element of a pattern other than "*": how long it is and whether it takes a character.
struct Element {
    qsizetype length;
    bool matches;
};

bool ListHolds(QStringView list, QChar c) {
    const char16_t wanted = c.unicode();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const char16_t low = Meant(list[i]);
        if (i + 2 < list.size() && list[i + 1] == u'-') {
            const char16_t high = Meant(list[i + 2]);
            if (low <= wanted && wanted <= high) return true;
            i += 2;
        } else if (low == wanted) {
            return true;
        }
    }
    return false;
}

Element ElementAt(QStringView pattern, QChar c) {
    switch (pattern.front().unicode()) {
        case u'?':
            return {1, true};
        case u'#':
            return {1, c >= u'0' && c <= u'9'};
        case u'[': {
            // A bracket right behind the opening one (or behind its "!") ends an empty list.
            const qsizetype end = pattern.indexOf(u']');
            if (end < 0) throw RuntimeError(93);
            QStringView list = pattern.sliced(1, end - 1);
            const bool others = list.size() > 1 && list.startsWith(u'!');
            if (others) list = list.sliced(1);
            return {end + 1, ListHolds(list, c) != others};
        }
        default:
            return {1, Meant(pattern.front()) == c.unicode()};
    }
}

void CheckLists(QStringView pattern) {
    for (qsizetype open = pattern.indexOf(u'['); open >= 0;) {
        const qsizetype close = pattern.indexOf(u']', open);
        if (close < 0) throw RuntimeError(93);
        open = pattern.indexOf(u'[', close);
    }
}

/// Both folded.
bool FoldedMatches(QStringView pattern, QStringView text) {
    // The place to go back to is that of the last "*" alone, which keeps the time to length times length.
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype star = -1;
    qsizetype retry = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = ++p;
            retry = t;
            continue;
        }
        if (pattern.sliced(p).startsWith(u"[]")) {
            p += 2;  // an empty list stands for no character
            continue;
        }
        if (p < pattern.size()) {
            const Element element = ElementAt(pattern.sliced(p), text[t]);
            if (element.matches) {
                p += element.length;
                ++t;
                continue;
            }
        }
        if (star < 0) return false;
        p = star;
        t = ++retry;
    }
    while (p < pattern.size())
        if (pattern[p] == u'*')
            ++p;
        else if (pattern.sliced(p).startsWith(u"[]"))
            p += 2;
        else
            return false;
    return true;
}

}  // namespace

bool LikeMatches(const QString& pattern, const QString& text) {
    // A search holds row after row against one pattern.
    static thread_local QString last;
    static thread_local QString folded;
    if (pattern != last) {
        CheckLists(pattern);
        folded = FoldedPattern(pattern);
        last = pattern;
    }
    return FoldedMatches(folded, FoldText(text));
}

}  // namespace akarix
