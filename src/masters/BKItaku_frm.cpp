#include "masters/BKItaku_frm.h"

#include <QVBoxLayout>
#include <array>

#include "masters/ConsignorForm.h"
#include "platform/forms/Choice.h"
#include "store/FieldValue.h"
#include "store/PutContents.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr int kFirstOption = 4;
constexpr int kLastOption = 22;

FieldTable Table(int first, std::initializer_list<std::pair<const char16_t*, const char16_t*>> labels) {
    FieldTable fields;
    int index = first;
    for (const auto& [label, column] : labels)
        fields.push_back(ConsignorField(index++, QString::fromUtf16(label), QString::fromUtf16(column)));
    return fields;
}

}  // namespace

BKItaku_frm::BKItaku_frm() : EntryForm(u"BKItaku_frm"_s, u"委託銀行"_s) {
    auto* body = new QVBoxLayout(this);
    const FieldTable bank = Table(0, {{u"銀行コード", u"Code"},
                                      {u"支店", u"Stn"},
                                      {u"銀行名", u"BkName"},
                                      {u"支店名", u"StnName"},
                                      {u"委託者コード", u"ItakuCode"},
                                      {u"委託者名", u"Itakusya"},
                                      {u"ファイル名", u"fName"},
                                      {u"種別", u"Syurui"},
                                      {u"口座番号", u"KozaNo"}});
    // Its code is 9900 for good, and so is no field.
    const FieldTable post = Table(static_cast<int>(bank.size()), {{u"郵便局", u"BkName"},
                                                                  {u"委託者コード", u"ItakuCode"},
                                                                  {u"委託者名", u"Itakusya"},
                                                                  {u"ファイル名", u"fName"},
                                                                  {u"口座番号", u"KozaNo"},
                                                                  {u"支店", u"Stn"},
                                                                  {u"支店名", u"StnName"},
                                                                  {u"再振替日", u"Saifurikae"},
                                                                  {u"契約種別", u"Keiyaku"},
                                                                  {u"受入事務センター", u"Jimusyo"}});
    addFrame(*body, u"銀行"_s, bank);
    addFrame(*body, u"郵便局"_s, post);
    body->addLayout(buttonBar({{0, u"保存"_s, [this] { save(); }, Keeps}}));
}

void BKItaku_frm::addFrame(QVBoxLayout& body, const QString& caption, const FieldTable& fields) {
    auto* frame = new Frame(caption, this);
    FieldLayout rows(*this);
    for (const MasterField& field : fields)
        rows.row(field.label).text(addBox(field.index, field.ime), field.bytes);
    frame->setLayout(rows.layout());
    body.addWidget(frame);
}

void BKItaku_frm::init() {
    emptyFields();
    Recordset set = gDb->OpenRecordset(u"SELECT * FROM UserOP WHERE Code>=4 and Code<=22 ORDER BY Code"_s);
    for (; !set.Eof(); set.MoveNext())
        ebox(LongOf(set[u"Code"_s]) - kFirstOption).SetText(NullToEmpty(set[u"contents"_s]));
    FocusSelect(ebox(0));
}

void BKItaku_frm::save() {
    for (int code = kFirstOption; code <= kLastOption; ++code) {
        PutContents(u"SELECT * FROM UserOP WHERE Code="_s + NumStr(code), NumStr(code),
                    ebox(code - kFirstOption).Text());
    }
    Unload();
}

}  // namespace akarix
