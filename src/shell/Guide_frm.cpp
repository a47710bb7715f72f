#include "shell/Guide_frm.h"

#include <QApplication>
#include <QHash>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

/// The chapters are named as the menu's buttons are, and some of the screens are not.
const QHash<QString, QString>& Headings() {
    static const QHash<QString, QString> all{
        {u"Slip_frm"_s, u"売上入力"_s},
        {u"SlipG_frm"_s, u"検針入力"_s},
        {u"SlipN2_frm"_s, u"入金入力"_s},
        {u"Seikyu_frm"_s, u"請求処理"_s},
        {u"SeikyuPrt_frm"_s, u"請求書印刷"_s},
        {u"RepoSeikyu_frm"_s, u"請求一覧表"_s},
        {u"RepoDaichou_frm"_s, u"消費先台帳"_s},
        {u"MstDeal_frm"_s, u"得意先"_s},
        {u"TorZan_frm"_s, u"得意先初期残"_s},
        {u"GTanka_frm"_s, u"料金表"_s},
        {u"電卓"_s, u"メモ型電卓"_s},
        {u"MstHin_frm"_s, u"商品"_s},
        {u"Keihoki_frm"_s, u"リース料金"_s},
        {u"MstRte_frm"_s, u"地区"_s},
        {u"MstBnk_frm"_s, u"銀行委託者設定"_s},
        {u"MstYubin_frm"_s, u"郵便委託者設定"_s},
        {u"etc_frm"_s, u"その他情報"_s},
        {u"Help_frm"_s, u"さがす"_s},
        {u"HelpDeal_frm"_s, u"さがす"_s},
        {u"HelpN_frm"_s, u"さがす"_s},
        {u"HelpSlip_frm"_s, u"さがす"_s},
        {u"Printer_frm"_s, u"印刷"_s},
        {u"SaveAs_frm"_s, u"ファイルに保存"_s},
        {u"Preview_frm"_s, u"プレビュー"_s},
        {u"FM"_s, u"プレビュー"_s},
    };
    return all;
}

const Form* FormBelow(const Form& form) {
    const QWindow* below = form.windowHandle() != nullptr ? form.windowHandle()->transientParent() : nullptr;
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (below != nullptr && widget->windowHandle() == below) return qobject_cast<const Form*>(widget);
    return nullptr;
}

}  // namespace

QString GuideHeading(const Form& form) {
    if (const auto found = Headings().find(form.objectName()); found != Headings().end()) return *found;
    const Form* below = FormBelow(form);
    return below != nullptr ? GuideHeading(*below) : QString();
}

Guide_frm::Guide_frm() : EscapableForm(u"Guide_frm"_s, u"操作のてびき"_s), Pages_(new GuidePages(this)) {
    Pages_->setObjectName(u"Pages"_s);
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
