#include "debit/DebitLayout.h"

namespace akarix {

namespace {

using enum DebitField::Holds;

// Places, widths and codes: the record of the Japanese banks' direct-debit exchange, as several banks publish
// it. Akarix sets the two names of the header to the right, and the banks take them.
constexpr DebitField kBankHeader[] = {
    {1, 1, u"データ区分", Choice, "1"},
    {2, 2, u"種別", Choice, "91|21"},
    {4, 1, u"コード区分", Choice, "0|1"},
    {5, 10, u"委託者コード", Digits},
    {15, 40, u"委託者名", Text},
    kDebitDay,
    {59, 4, u"取引銀行番号", Digits},
    {63, 15, u"取引銀行名", TextEitherSide},
    {78, 3, u"取引支店番号", Digits},
    {81, 15, u"取引支店名", TextEitherSide},
    {96, 1, u"預金種目", Choice, "1|2|3|9"},
    {97, 7, u"口座番号", Digits},
    {104, 17, u"ダミー", Filler},
};
constexpr DebitField kBankData[] = {
    {1, 1, u"データ区分", Choice, "2"},
    {2, 4, u"銀行", Digits},
    {6, 15, u"銀行名", Text},
    {21, 3, u"支店", Digits},
    {24, 15, u"支店名", Text},
    {39, 4, u"手形交換所", DigitsOrBlank},
    {43, 1, u"種目", Choice, "1|2|3|9"},
    {44, 7, u"口座番号", Digits},
    {51, 30, u"預金者名", Text},
    kDebitAmount,
    {91, 1, u"新規", Choice, "0|1|2"},
    kDebitCustomer,
    {kDebitResultPlace, 1, u"結果", Choice, "0|1|2|3|4|8|9"},
    {113, 8, u"ダミー", Filler},
};
constexpr DebitField kBankTrailer[] = {
    {1, 1, u"データ区分", Choice, "8"},
    kDebitCount,
    kDebitTotal,
    {20, 6, u"振替済件数", Number},
    {26, 12, u"振替済金額", Number},
    {38, 6, u"振替不能件数", Number},
    {44, 12, u"振替不能金額", Number},
    {56, 65, u"ダミー", Filler},
};
// The post office tries a second time, has neither branch names nor kinds of account, and leaves blank in a
// request what only its answer knows.
constexpr DebitField kPostHeader[] = {
    {1, 1, u"データ区分", Choice, "1"},
    {2, 2, u"種別", Choice, "21"},
    {4, 3, u"ダミー", Filler},
    {7, 8, u"委託者コード", Digits},
    {15, 40, u"委託者名", Text},
    kDebitDay,
    {59, 4, u"取引銀行番号", Choice, "9900"},
    {63, 15, u"取引郵便局名", Text},
    {78, 3, u"取引支店番号", Digits},
    {81, 17, u"ダミー", Filler},
    {98, 6, u"口座番号", Digits},
    {104, 4, u"再振替日", DayOrBlank},
    {108, 13, u"ダミー", Filler},
};
constexpr DebitField kPostData[] = {
    {1, 1, u"データ区分", Choice, "2"},
    {2, 4, u"銀行", Choice, "9900"},
    {6, 15, u"郵便局名", Text},
    {21, 3, u"支店", Digits},
    {24, 20, u"ダミー", Filler},
    {44, 7, u"口座番号", Digits},
    {51, 30, u"預金者名", Text},
    kDebitAmount,
    {91, 1, u"新規", Choice, "0|1|2"},
    kDebitCustomer,
    {kDebitResultPlace, 1, u"結果", Choice, " |0|1|2|3|4|8|9"},
    {113, 8, u"ダミー", Filler},
};
constexpr DebitField kPostTrailer[] = {
    {1, 1, u"データ区分", Choice, "8"},
    kDebitCount,
    kDebitTotal,
    {20, 6, u"振替済件数", DigitsOrBlank},
    {26, 12, u"振替済金額", DigitsOrBlank},
    {38, 6, u"振替不能件数", DigitsOrBlank},
    {44, 12, u"振替不能金額", DigitsOrBlank},
    {56, 65, u"ダミー", Filler},
};
constexpr DebitField kEnd[] = {
    {1, 1, u"データ区分", Choice, "9"},
    {2, 119, u"ダミー", Filler},
};

template <std::size_t A, std::size_t B>
std::span<const DebitField> Either(DebitForm form, const DebitField (&bank)[A], const DebitField (&post)[B]) {
    if (form == DebitForm::Bank) return bank;
    return post;
}

}  // namespace

DebitForm DebitFormOf(const QByteArray& header) {
    return header.startsWith("121") ? DebitForm::PostOffice : DebitForm::Bank;
}

std::span<const DebitField> DebitLayout(DebitForm form, char kind) {
    switch (kind) {
        case '1':
            return Either(form, kBankHeader, kPostHeader);
        case '2':
            return Either(form, kBankData, kPostData);
        case '8':
            return Either(form, kBankTrailer, kPostTrailer);
        case '9':
            return kEnd;
        default:
            return {};
    }
}

QString ComposeDebit(DebitForm form, char kind, const QStringList& parts) {
    auto part = parts.begin();
    QString record = QChar::fromLatin1(kind);
    for (const DebitField& field : DebitLayout(form, kind).subspan(1)) {
        const bool isGiven = field.holds != Filler && part != parts.end();
        record += (isGiven ? *part++ : QString()).leftJustified(field.width);
    }
    return record;
}

}  // namespace akarix
