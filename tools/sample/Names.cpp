#include "sample/Names.h"

#include "platform/runtime/Literals.h"

namespace akarix::sample {

namespace {

struct Pair {
    const char16_t* name;
    const char16_t* kana;
};

const Pair kFamilyNames[] = {
    {u"佐藤", u"ｻﾄｳ"},   {u"鈴木", u"ｽｽﾞｷ"}, {u"高橋", u"ﾀｶﾊｼ"},  {u"田中", u"ﾀﾅｶ"},     {u"伊藤", u"ｲﾄｳ"},
    {u"渡辺", u"ﾜﾀﾅﾍﾞ"}, {u"山本", u"ﾔﾏﾓﾄ"}, {u"中村", u"ﾅｶﾑﾗ"},  {u"小林", u"ｺﾊﾞﾔｼ"},   {u"加藤", u"ｶﾄｳ"},
    {u"吉田", u"ﾖｼﾀﾞ"},  {u"山田", u"ﾔﾏﾀﾞ"}, {u"佐々木", u"ｻｻｷ"}, {u"山口", u"ﾔﾏｸﾞﾁ"},   {u"松本", u"ﾏﾂﾓﾄ"},
    {u"井上", u"ｲﾉｳｴ"},  {u"木村", u"ｷﾑﾗ"},  {u"林", u"ﾊﾔｼ"},     {u"斎藤", u"ｻｲﾄｳ"},    {u"清水", u"ｼﾐｽﾞ"},
    {u"山崎", u"ﾔﾏｻﾞｷ"}, {u"森", u"ﾓﾘ"},     {u"阿部", u"ｱﾍﾞ"},   {u"池田", u"ｲｹﾀﾞ"},    {u"橋本", u"ﾊｼﾓﾄ"},
    {u"山下", u"ﾔﾏｼﾀ"},  {u"石川", u"ｲｼｶﾜ"}, {u"中島", u"ﾅｶｼﾞﾏ"}, {u"前田", u"ﾏｴﾀﾞ"},    {u"藤田", u"ﾌｼﾞﾀ"},
    {u"小川", u"ｵｶﾞﾜ"},  {u"後藤", u"ｺﾞﾄｳ"}, {u"岡田", u"ｵｶﾀﾞ"},  {u"長谷川", u"ﾊｾｶﾞﾜ"}, {u"村上", u"ﾑﾗｶﾐ"},
    {u"近藤", u"ｺﾝﾄﾞｳ"}, {u"石井", u"ｲｼｲ"},  {u"髙木", u"ﾀｶｷﾞ"},  {u"坂本", u"ｻｶﾓﾄ"},    {u"遠藤", u"ｴﾝﾄﾞｳ"},
    {u"青木", u"ｱｵｷ"},   {u"藤井", u"ﾌｼﾞｲ"}, {u"西村", u"ﾆｼﾑﾗ"},  {u"福田", u"ﾌｸﾀﾞ"},    {u"太田", u"ｵｵﾀ"},
    {u"三浦", u"ﾐｳﾗ"},   {u"岡本", u"ｵｶﾓﾄ"}, {u"松田", u"ﾏﾂﾀﾞ"},  {u"中川", u"ﾅｶｶﾞﾜ"},   {u"中野", u"ﾅｶﾉ"},
    {u"原田", u"ﾊﾗﾀﾞ"},  {u"小野", u"ｵﾉ"},   {u"田村", u"ﾀﾑﾗ"},   {u"竹内", u"ﾀｹｳﾁ"},    {u"金子", u"ｶﾈｺ"},
    {u"和田", u"ﾜﾀﾞ"},
};

const Pair kGivenNames[] = {
    {u"一郎", u"ｲﾁﾛｳ"},  {u"健二", u"ｹﾝｼﾞ"},  {u"三郎", u"ｻﾌﾞﾛｳ"}, {u"正夫", u"ﾏｻｵ"},  {u"和夫", u"ｶｽﾞｵ"},
    {u"清", u"ｷﾖｼ"},     {u"勇", u"ｲｻﾑ"},     {u"茂", u"ｼｹﾞﾙ"},    {u"博", u"ﾋﾛｼ"},    {u"隆", u"ﾀｶｼ"},
    {u"誠", u"ﾏｺﾄ"},     {u"浩一", u"ｺｳｲﾁ"},  {u"直樹", u"ﾅｵｷ"},   {u"哲也", u"ﾃﾂﾔ"},  {u"健太", u"ｹﾝﾀ"},
    {u"大輔", u"ﾀﾞｲｽｹ"}, {u"翔太", u"ｼﾖｳﾀ"},  {u"拓也", u"ﾀｸﾔ"},   {u"和子", u"ｶｽﾞｺ"}, {u"幸子", u"ｻﾁｺ"},
    {u"節子", u"ｾﾂｺ"},   {u"洋子", u"ﾖｳｺ"},   {u"恵子", u"ｹｲｺ"},   {u"京子", u"ｷﾖｳｺ"}, {u"由美子", u"ﾕﾐｺ"},
    {u"直美", u"ﾅｵﾐ"},   {u"智子", u"ﾄﾓｺ"},   {u"陽子", u"ﾖｳｺ"},   {u"裕子", u"ﾕｳｺ"},  {u"美穂", u"ﾐﾎ"},
    {u"愛", u"ｱｲ"},      {u"さくら", u"ｻｸﾗ"}, {u"ハル", u"ﾊﾙ"},    {u"トメ", u"ﾄﾒ"},   {u"昭", u"ｱｷﾗ"},
    {u"実", u"ﾐﾉﾙ"},     {u"修", u"ｵｻﾑ"},     {u"進", u"ｽｽﾑ"},     {u"豊", u"ﾕﾀｶ"},    {u"武", u"ﾀｹｼ"},
};

const Pair kRestaurants[] = {{u"食堂", u"ｼﾖｸﾄﾞｳ"}, {u"寿司", u"ｽﾞｼ"},      {u"そば店", u"ｿﾊﾞﾃﾝ"},
                             {u"旅館", u"ﾘﾖｶﾝ"},   {u"ラーメン", u"ﾗ-ﾒﾝ"}, {u"喫茶店", u"ｷﾂｻﾃﾝ"}};
const Pair kApartments[] = {
    {u"荘", u"ｿｳ"}, {u"ハイツ", u"ﾊｲﾂ"}, {u"アパート", u"ｱﾊﾟ-ﾄ"}, {u"コーポ", u"ｺ-ﾎﾟ"}};
const Pair kClinics[] = {{u"医院", u"ｲｲﾝ"}, {u"歯科医院", u"ｼｶｲｲﾝ"}};
const Pair kCompanies[] = {{u"工務店", u"ｺｳﾑﾃﾝ"}, {u"建設㈱", u"ｹﾝｾﾂ"}, {u"クリーニング", u"ｸﾘ-ﾆﾝｸﾞ"}};
const Pair kPlaces[] = {
    {u"本町", u"ﾎﾝﾁﾖｳ"}, {u"川西", u"ｶﾜﾆｼ"}, {u"山手", u"ﾔﾏﾃ"}, {u"浜通", u"ﾊﾏﾄﾞｵﾘ"}, {u"新田", u"ｼﾝﾃﾞﾝ"}};
const Pair kHalls[] = {{u"公民館", u"ｺｳﾐﾝｶﾝ"}, {u"集会所", u"ｼﾕｳｶｲｼﾞﾖ"}};
const Pair kSchools[] = {{u"小学校", u"ｼﾖｳｶﾞﾂｺｳ"}, {u"保育園", u"ﾎｲｸｴﾝ"}, {u"幼稚園", u"ﾖｳﾁｴﾝ"}};

const Town kTowns[kRouteCount][kTownsOfRoute] = {
    {{u"本町一丁目", u"999-9901"}, {u"本町二丁目", u"999-9902"}, {u"中央", u"999-9903"}},
    {{u"駅前", u"999-9911"}, {u"栄町", u"999-9912"}, {u"旭町", u"999-9913"}},
    {{u"川西", u"999-9921"}, {u"下川原", u"999-9922"}, {u"柳橋", u"999-9923"}},
    {{u"山手", u"999-9931"}, {u"城山", u"999-9932"}, {u"松ケ丘", u"999-9933"}},
    {{u"浜通", u"999-9941"}, {u"港町", u"999-9942"}, {u"磯崎", u"999-9943"}},
    {{u"新田", u"999-9951"}, {u"大字上野原", u"999-9952"}, {u"大字小沢", u"999-9953"}},
};

QString Text(const char16_t* value) {
    return QString::fromUtf16(value);
}

ReadName Joined(const Pair& first, const Pair& second) {
    return {Text(first.name) + Text(second.name), Text(first.kana) + Text(second.kana)};
}

}  // namespace

ReadName PersonName(Dice& dice) {
    const Pair& family = dice.pick(kFamilyNames);
    const Pair& given = dice.pick(kGivenNames);
    return {Text(family.name) + u"　"_s + Text(given.name), Text(family.kana) + u' ' + Text(given.kana)};
}

ReadName BusinessName(Dice& dice, Premises premises) {
    switch (premises) {
        case Premises::Restaurant:
            return Joined(dice.pick(kFamilyNames), dice.pick(kRestaurants));
        case Premises::Apartment:
            return Joined(dice.pick(kFamilyNames), dice.pick(kApartments));
        case Premises::Hospital:
            return Joined(dice.pick(kFamilyNames), dice.pick(kClinics));
        case Premises::Hall:
            return Joined(dice.pick(kPlaces), dice.pick(kHalls));
        case Premises::School:
            return Joined(dice.pick(kPlaces), dice.pick(kSchools));
        case Premises::Other:
            return Joined(dice.pick(kFamilyNames), dice.pick(kCompanies));
        case Premises::House:
            break;
    }
    return PersonName(dice);
}

const Town& TownOf(int route, int index) {
    return kTowns[route][index];
}

QString TownAddress(const Town& town) {
    return u"緑川市"_s + Text(town.name);
}

}  // namespace akarix::sample
