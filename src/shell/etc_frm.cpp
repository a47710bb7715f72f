#include "shell/etc_frm.h"

#include <QVBoxLayout>
#include <array>

#include "store/FieldValue.h"
#include "store/PutContents.h"
#include "store/Settings.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Field { kClosingDay, kReadingDay, kPrinting };
enum Button { kCancel, kSave };

struct Setting {
    std::int32_t code;
    int field;
};
constexpr std::array<Setting, 3> kSettings{{{1, kClosingDay}, {2, kPrinting}, {3, kReadingDay}}};

}  // namespace

etc_frm::etc_frm() : EntryForm(u"etc_frm"_s, u"その他"_s) {
    constexpr int kAnyBytes = 0;  // whatever is typed is stored; only the shown text is short
    constexpr int kShownBytes = 6;
    auto* body = new QVBoxLayout(this);
    body->setSpacing(16);
    FieldLayout fields(*this);
    const auto row = [&](const QString& caption, int field) {
        FieldLine line = fields.row(caption);
        line.text(addBox(field), kAnyBytes, kShownBytes);
        return line;
    };
    row(u"得意先　締日"_s, kClosingDay).note(u"得意先登録時にデフォルトで表示"_s);
    row(u"検針日"_s, kReadingDay);
    row(u"印刷設定"_s, kPrinting).note(u"0 = 直接印刷　1 = 表示後印刷"_s);
    body->addLayout(fields.layout());
    QHBoxLayout* bar = buttonBar(
        {{kCancel, u"キャンセル"_s, [this] { Unload(); }}, {kSave, u"保存"_s, [this] { save(); }, Keeps}});
    bar->setSpacing(8);
    body->addLayout(bar);
}

void etc_frm::init() {
    Recordset rows = gDb->OpenRecordset(u"SELECT * FROM zSysFunc WHERE Code>=1 and Code<=3"_s);
    // A single missing row leaves its field as it stands.
    if (rows.Eof()) emptyFields();
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::int32_t code = LongOf(rows[u"Code"_s]);
        for (const Setting& setting : kSettings) {
            if (setting.code != code) continue;
            ebox(setting.field).SetText(NullToEmpty(rows[u"contents"_s]));
        }
    }
    FocusSelect(ebox(kClosingDay));
}

bool etc_frm::enter(int index) {
    if (index != kPrinting) return true;
    SetFocus(&Btn(kSave));  // the walk would come to キャンセル first
    return false;
}

void etc_frm::save() {
    for (const Setting& setting : kSettings) {
        const QString code = NumStr(setting.code);
        const QString text = ebox(setting.field).Text();
        PutContents(u"SELECT * FROM zSysFunc WHERE Code="_s + code, code, text);
        // The days are read by their screens as these open; how to print is known from here on.
        if (setting.field == kPrinting) gPrintPreview = NumVal(text) == 1;
    }
}

}  // namespace akarix
