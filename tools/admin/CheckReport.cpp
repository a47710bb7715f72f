#include "admin/CheckReport.h"

#include "admin/Columns.h"
#include "admin/MonthArgument.h"

namespace akarix::admin {

namespace {

struct Word {
    const char16_t* of;
    const char16_t* word;
};

/// The screens' words for the columns of the ledger.
const Word columnWords[] = {{u"ZenkaiGaku", u"前月請求"}, {u"GGaku", u"LPガス"}, {u"UGaku", u"売上金額"},
                            {u"Gaku", u"請求額"},         {u"NGaku", u"入金額"}, {u"行", u"行がない"}};

QString wordOf(const QString& column) {
    for (const Word& entry : columnWords) {
        if (column == QStringView(entry.of)) return QString::fromUtf16(entry.word);
    }
    return column;
}

QString wordOf(Cause cause) {
    switch (cause) {
        case Cause::HandSet:
            return QStringLiteral("繰越を手で決めた");
        case Cause::NotBilledAgain:
            return QStringLiteral("請求処理のあとに変わった（やり直していない）");
        case Cause::PaidAfterBilling:
            return QStringLiteral("請求処理のあとの入金");
        case Cause::DebitReadBack:
            return QStringLiteral("口座振替の読込で置きかわった");
        case Cause::SourceGone:
            return QStringLiteral("もとの検針や入金がない");
        case Cause::Unknown:
            break;
    }
    return QStringLiteral("不明");
}

QString wordOf(Doubt doubt, const QString& usual) {
    switch (doubt) {
        case Doubt::Negative:
            return QStringLiteral("使用量がマイナス");
        case Doubt::NoCharge:
            return QStringLiteral("使用量があるのに料金が 0");
        case Doubt::NotMeters:
            return QStringLiteral("指針からの計算（%1）と違う").arg(usual);
        case Doubt::NotLast:
            return QStringLiteral("前回が、最後に読んだ値（%1）と違う").arg(usual);
        case Doubt::NeverRead:
            return QStringLiteral("読まないまま請求した（%1 か月）").arg(usual);
        case Doubt::FarAbove:
            return QStringLiteral("この一年の最大（%1）よりはるかに多い").arg(usual);
        case Doubt::FarBelow:
            break;
    }
    return QStringLiteral("この一年の最小（%1）よりはるかに少ない").arg(usual);
}

QString wordOf(const LeaseFinding& finding) {
    switch (finding.fault) {
        case LeaseFault::Missing:
            return QStringLiteral("%1がない").arg(finding.line);
        case LeaseFault::NotLeased:
            return QStringLiteral("得意先に印がないのに%1がある").arg(finding.line);
        case LeaseFault::LineDoubled:
            return QStringLiteral("%1が重なっている").arg(finding.line);
        case LeaseFault::SlipDoubled:
            return QStringLiteral("リースの伝票が何枚もある");
        case LeaseFault::NumberShared:
            return QStringLiteral("同じ番号の伝票がほかの月か得意先にもある");
        case LeaseFault::UnknownLine:
            break;
    }
    return QStringLiteral("リースではない行「%1」がある").arg(finding.line);
}

/// With thousands marks: "-1,234.5".
QString grouped(std::int64_t scaled) {
    QString text = amountText(scaled);
    const qsizetype point = text.indexOf(u'.');
    for (qsizetype at = (point < 0 ? text.size() : point) - 3; at > (scaled < 0 ? 1 : 0); at -= 3)
        text.insert(at, u',');
    return text;
}

QString nameOf(std::int32_t deal, const CustomerNames& names) {
    const auto known = names.find(deal);
    return known == names.end() ? QStringLiteral("（登録なし）") : known->second;
}

QString findingsTable(const LedgerProof& proof, const CustomerNames& names) {
    Columns table({QStringLiteral("年月"), QStringLiteral(">得意先"), QStringLiteral("名前"),
                   QStringLiteral("項目"), QStringLiteral(">計算"), QStringLiteral(">台帳"),
                   QStringLiteral(">差"), QStringLiteral("わけ")});
    for (const LedgerFinding& finding : proof.findings) {
        const Difference& d = finding.difference;
        const bool isRow = d.column == u"行";
        table.add({monthText(d.nendo, d.getudo), QString::number(d.deal), nameOf(d.deal, names),
                   wordOf(d.column), isRow ? QString() : grouped(d.expected),
                   isRow ? QString() : grouped(d.found), isRow ? QString() : grouped(d.found - d.expected),
                   wordOf(finding.cause)});
    }
    return table.text();
}

}  // namespace

QString ledgerReport(const LedgerProof& proof, const CustomerNames& names) {
    QString text = QStringLiteral("台帳: 請求処理をした月 %1、%2 行\n").arg(proof.months).arg(proof.rows);
    if (proof.openings != 0) {
        text += QStringLiteral("  はじめの繰越を手で決めた得意先: %1 件\n").arg(proof.openings);
    }
    if (proof.unproved != 0) {
        text +=
            QStringLiteral(
                "  %1 より前の台帳がなく、確かめられない繰越: %2 件（この月を請求し直すと 0 になります）\n")
                .arg(monthText(proof.first.first, proof.first.second))
                .arg(proof.unproved);
    }
    if (!proof.purged.empty()) {
        QStringList customers;
        for (const std::int32_t deal : proof.purged)
            customers += QString::number(deal);
        text += QStringLiteral("  はじめの月を消した得意先の、確かめられない繰越: %1 件（得意先 %2）\n")
                    .arg(customers.size())
                    .arg(customers.join(QStringLiteral("、")));
    }
    for (const auto& [nendo, getudo] : proof.notYetBilled)
        text += QStringLiteral("  %1 はまだ請求処理をしていません。\n").arg(monthText(nendo, getudo));
    if (proof.findings.empty())
        return text + QStringLiteral("  検針、売上、入金からの計算とすべて合います。\n");
    return text + QStringLiteral("  計算と合わないところ: %1\n").arg(proof.findings.size()) +
           findingsTable(proof, names);
}

QString readingReport(const std::vector<DoubtfulReading>& doubtful, int fromMonth,
                      const CustomerNames& names) {
    if (fromMonth == 0) return QStringLiteral("検針: ありません。\n");
    QString text = QStringLiteral("検針: %1 から\n").arg(monthText(fromMonth / 100, fromMonth % 100));
    if (doubtful.empty()) return text + QStringLiteral("  気になるものはありません。\n");
    Columns table({QStringLiteral("年月"), QStringLiteral(">得意先"), QStringLiteral("名前"),
                   QStringLiteral(">前回"), QStringLiteral(">今回"), QStringLiteral(">使用量"),
                   QStringLiteral(">料金"), QStringLiteral("わけ")});
    for (const DoubtfulReading& reading : doubtful) {
        table.add({monthText(reading.nendo, reading.getudo), QString::number(reading.deal),
                   nameOf(reading.deal, names), grouped(reading.zenkaiMeter), grouped(reading.konkaiMeter),
                   grouped(reading.use), grouped(reading.charge),
                   wordOf(reading.doubt, grouped(reading.usual))});
    }
    return text + QStringLiteral("  目を通してほしいもの: %1 件\n").arg(doubtful.size()) + table.text();
}

QString leaseReport(const std::vector<LeaseFinding>& findings, const CustomerNames& names) {
    if (findings.empty()) return QStringLiteral("リースの伝票: 請求処理をした月と得意先の印に合います。\n");
    Columns table({QStringLiteral("年月"), QStringLiteral(">得意先"), QStringLiteral("名前"),
                   QStringLiteral(">伝票"), QStringLiteral("わけ")});
    for (const LeaseFinding& finding : findings) {
        table.add({monthText(finding.nendo, finding.getudo), QString::number(finding.deal),
                   nameOf(finding.deal, names), finding.slip == 0 ? QString() : QString::number(finding.slip),
                   wordOf(finding)});
    }
    return QStringLiteral("リースの伝票: 合わないところ %1\n").arg(findings.size()) + table.text();
}

}  // namespace akarix::admin
