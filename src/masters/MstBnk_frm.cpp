#include "masters/MstBnk_frm.h"

namespace akarix {

namespace {

enum Field { kCode, kStn, kBkName, kStnName, kItakuCode, kItakusya, kFName, kSyurui, kKozaNo };

MasterTexts Texts() {
    return ConsignorTexts(u"SELECT * FROM Bnk WHERE Code=%1"_s,
                          u"SELECT * FROM Bnk WHERE Code<%1 AND Code<>9900 ORDER BY Code DESC"_s,
                          u"SELECT * FROM Bnk WHERE Code>%1 AND Code<>9900 ORDER BY Code"_s);
}

FieldTable Fields() {
    FieldTable table{
        ConsignorField(kCode, u"銀行コード"_s, u"Code"_s),
        ConsignorField(kStn, u"支店"_s, u"Stn"_s),
        ConsignorField(kBkName, u"銀行名"_s, u"BkName"_s),
        ConsignorField(kStnName, u"支店名"_s, u"StnName"_s),
        ConsignorField(kItakuCode, u"委託者コード"_s, u"ItakuCode"_s),
        ConsignorField(kItakusya, u"委託者名"_s, u"Itakusya"_s),
        ConsignorField(kFName, u"ファイル名"_s, u"fName"_s),
        ConsignorField(kSyurui, u"種別"_s, u"Syurui"_s),
        ConsignorField(kKozaNo, u"口座番号"_s, u"KozaNo"_s),
    };
    table[kCode].lookup = CodeLookup{};
    table[kSyurui].note = u"普通=1, 当座=2"_s;
    return table;
}

}  // namespace

MstBnk_frm::MstBnk_frm()
    : ConsignorForm(u"MstBnk_frm"_s, u"委託銀行マスター"_s, Texts(), Fields(),
                    {{kCode, u"銀行コードを入れてください。"_s},
                     {kStn, u"支店を入れてください。"_s},
                     {kBkName, u"銀行名を入れてください。"_s},
                     {kStnName, u"支店名を入れてください。"_s},
                     {kItakuCode, u"委託者コードを入れてください。"_s},
                     {kItakusya, u"委託者名を入れてください。"_s},
                     {kFName, u"ファイル名を入れてください。"_s},
                     {kSyurui, u"種別を入れてください。"_s},
                     {kKozaNo, u"口座番号を入れてください。"_s}}) {}

}  // namespace akarix
