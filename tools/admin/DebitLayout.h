#pragma once

#include <QByteArray>
#include <QString>
#include <span>

namespace akarix::admin {

/// A field of the published direct-debit record of 120 single-byte characters.
struct DebitField {
    enum class Holds { Digits, Number, Text, Day, Choice, Clearing, Filler };

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
std::span<const DebitField> DebitLayout(char kind);
/// "ヘッダー", "データ", "トレーラ", "エンド", or "不明".
QString DebitKindName(char kind);
/// What a result code says; empty for one that is not in the list.
QString DebitResultName(char code);

/// Why a field's bytes do not fit the layout; empty when they do.
QString FieldDeparture(const DebitField& field, const QByteArray& bytes);

}  // namespace akarix::admin
