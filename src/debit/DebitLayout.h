#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <span>

namespace akarix {

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
    QString of(const QString& record) const { return record.mid(place - 1, width); }
};

constexpr int kDebitRecord = 120;
// What is read back, at the same place in both forms.
constexpr DebitField kDebitDay{55, 4, u"引落日", DebitField::Holds::Day};
constexpr DebitField kDebitAmount{81, 10, u"引落金額", DebitField::Holds::Number};
constexpr DebitField kDebitCustomer{92, 20, u"顧客番号", DebitField::Holds::Number};
constexpr int kDebitResultPlace = 112;
constexpr DebitField kDebitCount{2, 6, u"合計件数", DebitField::Holds::Number};
constexpr DebitField kDebitTotal{8, 12, u"合計金額", DebitField::Holds::Number};

/// The fields of a record by its kind '1', '2', '8' or '9'; none for any other.
std::span<const DebitField> DebitLayout(DebitForm form, char kind);

/// A record of the kind. \param parts what stands in its fields behind the first, fillers passed over. A part
/// is filled to its field's width and never cut; what is not given is blank.
QString ComposeDebit(DebitForm form, char kind, const QStringList& parts);

}  // namespace akarix
