#include "shell/Guide_frm.h"

#include <QApplication>
#include <QHash>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace akarix {

namespace {

/// The chapters are named as the menu's buttons are, and some of the screens are not.
const QHash<QString, QString>& headings() {
    static const QHash<QString, QString> all{
        {QStringLiteral("Slip_frm"), QStringLiteral("売上入力")},
        {QStringLiteral("SlipG_frm"), QStringLiteral("検針入力")},
        {QStringLiteral("SlipN2_frm"), QStringLiteral("入金入力")},
        {QStringLiteral("Seikyu_frm"), QStringLiteral("請求処理")},
        {QStringLiteral("SeikyuPrt_frm"), QStringLiteral("請求書印刷")},
        {QStringLiteral("RepoSeikyu_frm"), QStringLiteral("請求一覧表")},
        {QStringLiteral("RepoDaichou_frm"), QStringLiteral("消費先台帳")},
        {QStringLiteral("MstDeal_frm"), QStringLiteral("得意先")},
        {QStringLiteral("TorZan_frm"), QStringLiteral("得意先初期残")},
        {QStringLiteral("GTanka_frm"), QStringLiteral("料金表")},
        {QStringLiteral("電卓"), QStringLiteral("メモ型電卓")},
        {QStringLiteral("MstHin_frm"), QStringLiteral("商品")},
        {QStringLiteral("Keihoki_frm"), QStringLiteral("リース料金")},
        {QStringLiteral("MstRte_frm"), QStringLiteral("地区")},
        {QStringLiteral("MstBnk_frm"), QStringLiteral("銀行委託者設定")},
        {QStringLiteral("MstYubin_frm"), QStringLiteral("郵便委託者設定")},
        {QStringLiteral("etc_frm"), QStringLiteral("その他情報")},
        {QStringLiteral("Help_frm"), QStringLiteral("さがす")},
        {QStringLiteral("HelpDeal_frm"), QStringLiteral("さがす")},
        {QStringLiteral("HelpN_frm"), QStringLiteral("さがす")},
        {QStringLiteral("HelpSlip_frm"), QStringLiteral("さがす")},
        {QStringLiteral("Printer_frm"), QStringLiteral("印刷")},
        {QStringLiteral("SaveAs_frm"), QStringLiteral("ファイルに保存")},
        {QStringLiteral("Preview_frm"), QStringLiteral("プレビュー")},
        {QStringLiteral("FM"), QStringLiteral("プレビュー")},
    };
    return all;
}

const Form* formBelow(const Form& form) {
    const QWindow* below = form.windowHandle() != nullptr ? form.windowHandle()->transientParent() : nullptr;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (below != nullptr && widget->windowHandle() == below) return qobject_cast<const Form*>(widget);
    }
    return nullptr;
}

}  // namespace

QString GuideHeading(const Form& form) {
    if (const auto found = headings().find(form.objectName()); found != headings().end()) return *found;
    const Form* below = formBelow(form);
    return below != nullptr ? GuideHeading(*below) : QString();
}

Guide_frm::Guide_frm()
    : EscapableForm(QStringLiteral("Guide_frm"), QStringLiteral("操作のてびき")),
      Pages_(new GuidePages(this)) {
    Pages_->setObjectName(QStringLiteral("Pages"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(Pages_);
    constexpr QSize kPage(840, 760);
    resize(kPage);
}

void Guide_frm::OpenFor(const Form& form) {
    if (form.objectName() == u"Guide_frm") return;
    auto& guide = Form::Instance<Guide_frm>();
    guide.Pages_->showScreen(GuideHeading(form));
    guide.showBeside();
}

/// A modal dialog leaves only the windows that stand on it at work.
void Guide_frm::showBeside() {
    const QWidget* dialog = QApplication::activeModalWidget();
    QWindow* below = dialog != nullptr ? dialog->windowHandle() : nullptr;
    Show();
    if (windowHandle()->transientParent() == below) return;
    hide();
    windowHandle()->setTransientParent(below);
    Show();
}

}  // namespace akarix
