#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <vector>

namespace akarix {

/// A cell's format code taken apart. A code has up to four sections, parted by ';': for numbers above 0,
/// below 0, for 0, and for text; or sections with conditions of their own.

struct FormatToken {
    enum class Kind {
        Literal,
        Digit,  ///< one of 0 # ?
        Point,
        Percent,
        Text,  ///< @
        General,
        Date,     ///< a run of one date letter in small letters, or "am/pm"
        Minutes,  ///< an m or mm that stands beside hours or seconds
    };
    Kind kind;
    QString text;
};

struct FormatCondition {
    enum class Op { Less, LessEqual, Equal, NotEqual, GreaterEqual, Greater };
    Op op;
    double limit;
    bool holds(double value) const;
    bool onlyNegatives() const {
        return limit <= 0 && (op == Op::Less || (op == Op::LessEqual && limit < 0));
    }
};

struct FormatSection {
    std::vector<FormatToken> tokens;
    QColor color;
    std::optional<FormatCondition> condition;
    bool date = false;
    bool text = false;      ///< holds @
    bool known = true;      ///< else its numbers show as under General
    bool grouping = false;  ///< commas between thousands
    int shift = 0;          ///< power of ten that the value is shown by: percents up, trailing commas down
    bool firstYearByName = false;  ///< an era's first year is 元
    bool japaneseHalves = false;   ///< AM/PM as 午前/午後
};

std::vector<FormatSection> ParseFormatCode(const QString& code);

/// The text of a day serial with its time of day through a section of date tokens.
QString FormatSerial(double serial, const FormatSection& section);

}  // namespace akarix
