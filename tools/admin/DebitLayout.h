#pragma once

#include <QByteArray>
#include <QString>
#include <span>

namespace akarix::admin {

/// Whose record it is: the banks' is published; the post office fills the same 120 characters its own way.
enum class DebitForm { Bank, PostOffice };

/// By the type in the header, the first record of a file.
DebitForm DebitFormOf(const QByteArray& header);

/// A field of a direct-debit record of 120 single-byte characters.
struct DebitField {
    enum class Holds { Digits, Number, DigitsOrBlank, Text, TextEitherSide, Day, DayOrBlank, Choice, Filler };

    int place;  ///< counted from 1
    int width;
    const char16_t* name;
    Holds holds;
    const char* choices = "";  ///< parted by "|"

    QByteArray of(const QByteArray& record) const { return record.mid(place - 1, width); }
};

constexpr int kDebitRecord = 120;
constexpr int kResultPlace = 112;

/// The fields of a record by its kind '1', '2', '8' or '9'; none for any other.
std::span<const DebitField> DebitLayout(DebitForm form, char kind);
/// "ヘッダー", "データ", "トレーラ", "エンド", or "不明".
QString DebitKindName(char kind);
/// What a result code says; empty for one that is not in the list.
QString DebitResultName(char code);

/// Why a field's bytes do not fit the layout; empty when they do.
QString FieldDeparture(const DebitField& field, const QByteArray& bytes);

}  // namespace akarix::admin
