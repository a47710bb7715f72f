#include "masters/ConsignorForm.h"

#include <algorithm>
#include <array>

#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

const QString kBranch = u"Stn"_s;

struct Shape {
    const char16_t* column;
    int bytes;
    ImeMode ime = ImeMode::Off;
    const char16_t* mask = nullptr;  ///< of a number; the others are texts
};

// The names go into the request file as they are typed here, and the file knows half-width kana alone.
constexpr std::array<Shape, 12> kShapes{{
    {u"Code", kIntegerBytes, ImeMode::Off, u"0000"},
    {u"Stn", kIntegerBytes, ImeMode::Off, u"000"},
    {u"BkName", 15, ImeMode::KatakanaHalf},
    {u"StnName", 15, ImeMode::KatakanaHalf},
    {u"ItakuCode", 10},
    {u"Itakusya", 40, ImeMode::KatakanaHalf},
    {u"fName", 60},
    {u"Syurui", 1},
    {u"KozaNo", 7},
    {u"Saifurikae", 2},
    {u"Keiyaku", 30, ImeMode::Hiragana},
    {u"Jimusyo", 30, ImeMode::Hiragana},
}};

}  // namespace

MasterField ConsignorField(int index, const QString& label, const QString& column) {
    const auto* shape = std::find_if(kShapes.begin(), kShapes.end(),
                                     [&column](const Shape& known) { return column == known.column; });
    MasterField field{
        .index = index, .label = label, .column = column, .bytes = shape->bytes, .ime = shape->ime};
    if (shape->mask) {
        field.kind = FieldKind::Integer;
        field.display = Masked(QString::fromUtf16(shape->mask));
    }
    return field;
}

MasterTexts ConsignorTexts(const QString& load, const QString& left, const QString& right) {
    return {
        .table = u"Bnk"_s,
        .load = load,
        .left = left,
        .right = right,
        // The branch as it stands on the screen: changed there, nothing is deleted.
        .remove = u"DELETE FROM Bnk  WHERE Code=%1 AND   Stn =%2"_s,
        .removeQuestion = u"この委託を削除します。"_s,
    };
}

ConsignorForm::ConsignorForm(const QString& name, const QString& caption, MasterTexts texts,
                             const FieldTable& fields, std::vector<Requirement> required)
    : MasterForm(name, caption, std::move(texts)), required_(std::move(required)) {
    for (const MasterField& field : fields)
        if (field.column == kBranch) branch_ = field.index;
    addFields(fields);
    addButtons();
}

bool ConsignorForm::maySave() {
    return std::all_of(required_.begin(), required_.end(),
                       [this](const Requirement& need) { return require(need.field, need.message); });
}

QString ConsignorForm::removeSql() {
    return MasterForm::removeSql().arg(NumStr(NumVal(ebox(branch_).Text())));
}

}  // namespace akarix
