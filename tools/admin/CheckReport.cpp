#include "admin/CheckReport.h"

#include "admin/Columns.h"
#include "admin/MonthArgument.h"
#include "platform/runtime/Literals.h"

namespace akarix::admin {

namespace {

template <class Key>
struct Word {
    Key of;
    const char16_t* word;
};

/// The screens' words for the columns of the ledger.
constexpr Word<QStringView> kColumnWords[] = {{u"ZenkaiGaku", u"前月請求"}, {u"GGaku", u"LPガス"},
                                              {u"UGaku", u"売上金額"},      {u"Gaku", u"請求額"},
                                              {u"NGaku", u"入金額"},        {u"行", u"行がない"}};

constexpr Word<Cause> kCauseWords[] = {
    {Cause::HandSet, u"繰越を手で決めた"},
    {Cause::NotBilledAgain, u"請求処理のあとに変わった（やり直していない）"},
    {Cause::PaidAfterBilling, u"請求処理のあとの入金"},
    {Cause::DebitReadBack, u"口座振替の読込で置きかわった"},
    {Cause::SourceGone, u"もとの検針や入金がない"},
    {Cause::Unknown, u"不明"}};

// %1 is what is usual.
constexpr Word<Doubt> kDoubtWords[] = {{Doubt::Negative, u"使用量がマイナス"},
                                       {Doubt::NoCharge, u"使用量があるのに料金が 0"},
                                       {Doubt::NotMeters, u"指針からの計算（%1）と違う"},
                                       {Doubt::NotLast, u"前回が、最後に読んだ値（%1）と違う"},
                                       {Doubt::NeverRead, u"読まないまま請求した（%1 か月）"},
                                       {Doubt::FarAbove, u"この一年の最大（%1）よりはるかに多い"},
                                       {Doubt::FarBelow, u"この一年の最小（%1）よりはるかに少ない"}};

// %1 is the line.
constexpr Word<LeaseFault> kLeaseWords[] = {
    {LeaseFault::Missing, u"%1がない"},
    {LeaseFault::NotLeased, u"得意先に印がないのに%1がある"},
    {LeaseFault::LineDoubled, u"%1が重なっている"},
    {LeaseFault::SlipDoubled, u"リースの伝票が何枚もある"},
    {LeaseFault::NumberShared, u"同じ番号の伝票がほかの月か得意先にもある"},
    {LeaseFault::UnknownLine, u"リースではない行「%1」がある"}};

template <class Key, std::size_t Count>
QString WordFor(const Word<Key> (&words)[Count], const Key& key, const QString& filling = {}) {
    for (const Word<Key>& entry : words)
        if (entry.of == key) return QString::fromUtf16(entry.word).replace(u"%1"_s, filling);
    return {};
}

/// With thousands marks: "-1,234.5".
QString Grouped(std::int64_t scaled) {
    QString text = AmountText(scaled);
    const qsizetype point = text.indexOf(u'.');
    for (qsizetype at = (point < 0 ? text.size() : point) - 3; at > (scaled < 0 ? 1 : 0); at -= 3)
        text.insert(at, u',');
    return text;
}

QString NameOf(std::int32_t deal, const CustomerNames& names) {
    const auto known = names.find(deal);
    return known == names.end() ? u"（登録なし）"_s : known->second;
}

QString FindingsTable(const LedgerProof& proof, const CustomerNames& names) {
    Columns table(
        {u"年月"_s, u">得意先"_s, u"名前"_s, u"項目"_s, u">計算"_s, u">台帳"_s, u">差"_s, u"わけ"_s});
    for (const LedgerFinding& finding : proof.findings) {
        const Difference& d = finding.difference;
        const bool isRow = d.column == u"行";
        table.add({MonthText(d.month), QString::number(d.deal), NameOf(d.deal, names),
                   WordFor(kColumnWords, QStringView(d.column)), isRow ? QString() : Grouped(d.expected),
                   isRow ? QString() : Grouped(d.found), isRow ? QString() : Grouped(d.found - d.expected),
                   WordFor(kCauseWords, finding.cause)});
    }
    return table.text();
}

}  // namespace

QString LedgerReport(const LedgerProof& proof, const CustomerNames& names) {
    QString text = u"台帳: 請求処理をした月 %1、%2 行\n"_s.arg(proof.months).arg(proof.rows);
    if (proof.openings != 0) text += u"  はじめの繰越を手で決めた得意先: %1 件\n"_s.arg(proof.openings);
    if (proof.unproved != 0) {
        text += u"  %1 より前の台帳がなく、確かめられない繰越: %2 件（この月を請求し直すと 0 になります）\n"_s
                    .arg(MonthText(proof.first))
                    .arg(proof.unproved);
    }
    if (!proof.purged.empty()) {
        QStringList customers;
        for (const std::int32_t deal : proof.purged)
            customers += QString::number(deal);
        text +=
            u"  はじめの月を消した得意先の、確かめられない繰越: %1 件（得意先 %2）\n"_s.arg(customers.size())
                .arg(customers.join(u"、"_s));
    }
    for (const BillingMonth month : proof.notYetBilled)
        text += u"  %1 はまだ請求処理をしていません。\n"_s.arg(MonthText(month));
    if (proof.findings.empty()) return text + u"  検針、売上、入金からの計算とすべて合います。\n"_s;
    return text + u"  計算と合わないところ: %1\n"_s.arg(proof.findings.size()) + FindingsTable(proof, names);
}

QString ReadingReport(const std::vector<DoubtfulReading>& doubtful, BillingMonth from,
                      const CustomerNames& names) {
    if (from == BillingMonth()) return u"検針: ありません。\n"_s;
    QString text = u"検針: %1 から\n"_s.arg(MonthText(from));
    if (doubtful.empty()) return text + u"  気になるものはありません。\n"_s;
    Columns table(
        {u"年月"_s, u">得意先"_s, u"名前"_s, u">前回"_s, u">今回"_s, u">使用量"_s, u">料金"_s, u"わけ"_s});
    for (const DoubtfulReading& reading : doubtful) {
        table.add({MonthText(reading.month), QString::number(reading.deal), NameOf(reading.deal, names),
                   Grouped(reading.zenkaiMeter), Grouped(reading.konkaiMeter), Grouped(reading.use),
                   Grouped(reading.charge), WordFor(kDoubtWords, reading.doubt, Grouped(reading.usual))});
    }
    return text + u"  目を通してほしいもの: %1 件\n"_s.arg(doubtful.size()) + table.text();
}

QString LeaseReport(const std::vector<LeaseFinding>& findings, const CustomerNames& names) {
    if (findings.empty()) return u"リースの伝票: 請求処理をした月と得意先の印に合います。\n"_s;
    Columns table({u"年月"_s, u">得意先"_s, u"名前"_s, u">伝票"_s, u"わけ"_s});
    for (const LeaseFinding& finding : findings) {
        table.add({MonthText(finding.month), QString::number(finding.deal), NameOf(finding.deal, names),
                   finding.slip == 0 ? QString() : QString::number(finding.slip),
                   WordFor(kLeaseWords, finding.fault, finding.line)});
    }
    return u"リースの伝票: 合わないところ %1\n"_s.arg(findings.size()) + table.text();
}

}  // namespace akarix::admin
