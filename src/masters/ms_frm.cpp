#include "masters/ms_frm.h"

#include <array>

#include "store/Lookup.h"
#include "toolkit/FieldBytes.h"
#include "toolkit/FieldWalk.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

constexpr int kName = 2;
constexpr int kShortName = 3;

constexpr std::array<std::pair<const char16_t*, const char16_t*>, 5> kCaptions{{{u"Dbn", u"取引先分類"},
                                                                                {u"Kko", u"加工方法"},
                                                                                {u"DyJkn", u"染色条件"},
                                                                                {u"Col", u"色"},
                                                                                {u"Shk", u"出荷形態"}}};

QString captionOf(const QString& table) {
    for (const auto& [name, caption] : kCaptions) {
        if (table == QString::fromUtf16(name)) return QString::fromUtf16(caption);
    }
    return table;
}

FieldTable fields() {
    return {
        {.index = 0,
         .label = QStringLiteral("コード"),
         .column = QStringLiteral("Code"),
         .kind = FieldKind::Long,
         .bytes = kLongKeyBytes,
         .lookup = FieldLookup{}},
        {.index = 1,
         .label = QStringLiteral("ﾌﾘｶﾞﾅ"),
         .column = QStringLiteral("Kana"),
         .bytes = 30,
         .ime = ImeMode::KatakanaHalf},
        {.index = kName,
         .label = QStringLiteral("名前"),
         .column = QStringLiteral("Namae"),
         .bytes = 40,
         .ime = ImeMode::Hiragana},
        {.index = kShortName,
         .label = QStringLiteral("略称"),
         .column = QStringLiteral("Ryaku"),
         .bytes = 20,
         .ime = ImeMode::Hiragana},
    };
}

}  // namespace

ms_frm::ms_frm() : MasterForm(QStringLiteral("ms_frm"), {}, {}) {
    addFields(fields());
    addButtons();
}

void ms_frm::init(const QString& table) {
    table_ = table;
    SetCaption(captionOf(table));
    setTexts({.table = table,
              .load = QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE Code=%1"),
              .left = {},
              .right = {},
              .remove = QStringLiteral("DELETE FROM ") + table + QStringLiteral(" WHERE Code=%1"),
              .removeQuestion = QStringLiteral("このコードを削除します。")});
    clear();
}

bool ms_frm::enter(int index) {
    if (index == kShortName) {
        save();
        return false;
    }
    if (index == kName) CopyIfEmpty(ebox(kName), ebox(kShortName));
    return MasterForm::enter(index);
}

// The figures as typed: what is no plain number finds no row, rather than that of its first part.
QString ms_frm::codeText() const {
    return KeepNumeric(ebox(kCode).Text());
}

QString ms_frm::proposedCode() {
    return NumStr(HighestPlus(
        QStringLiteral("SELECT TOP 1 Code FROM ") + table_ + QStringLiteral(" ORDER BY Code DESC"), 1));
}

// A code without a row gives way to the next free one.
void ms_frm::keepUnknownCode(const QString& /*typed*/) {}

bool ms_frm::maySave() {
    return NumVal(ebox(kCode).Text()) != 0.0 || refuse(QStringLiteral("コードが記述されていません。"), kCode);
}

}  // namespace akarix
