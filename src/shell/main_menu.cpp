#include "shell/main_menu.h"

#include <QApplication>
#include <QEvent>
#include <array>

#include "billing/Seikyu_frm.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/AskText.h"
#include "dialogs/ShowAlert.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "entry/TorZan_frm.h"
#include "masters/BKItaku_frm.h"
#include "masters/GTanka_frm.h"
#include "masters/MstBnk_frm.h"
#include "masters/MstDeal_frm.h"
#include "masters/MstHin_frm.h"
#include "masters/MstRte_frm.h"
#include "masters/MstYubin_frm.h"
#include "platform/forms/MsgBox.h"
#include "platform/forms/SessionEnd.h"
#include "platform/forms/SingleInstance.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "reports/RepoDaichou_frm.h"
#include "reports/RepoSeikyu_frm.h"
#include "reports/SeikyuPrt_frm.h"
#include "shell/Backup.h"
#include "shell/Guide_frm.h"
#include "shell/Keihoki_frm.h"
#include "shell/Opening_frm.h"
#include "shell/SysFunc_frm.h"
#include "shell/etc_frm.h"
#include "store/Settings.h"
#include "store/dbAccess.h"
#include "toolkit/ResizeForm.h"
#include "values/Dates.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

using Opener = void (*)();

struct BoardButton {
    int index;
    int column;
    const char16_t* caption;
    Opener open = nullptr;  ///< none: the menu's own operation
};

constexpr std::array<const char16_t*, 4> kColumns{u"日次業務", u"月次業務", u"マスター", u"その他"};
constexpr int kChangePassword = 6;
constexpr int kUnreachableConsignor = 10;
constexpr int kBackupPlace = 11;

// In the order of the walk: column by column, from the top.
constexpr std::array<BoardButton, 19> kBoard{{
    {0, 0, u"売上入力", &OpenScreen<Slip_frm>},
    {1, 0, u"検針入力", &OpenScreen<SlipG_frm>},
    {2, 0, u"入金入力", &OpenScreen<SlipN2_frm>},
    {kUnreachableConsignor, 0, u"銀行委託者設定", &OpenScreen<BKItaku_frm>},
    {16, 1, u"請求処理", &OpenScreen<Seikyu_frm>},
    {5, 1, u"請求書印刷", &OpenScreen<SeikyuPrt_frm>},
    {7, 1, u"請求一覧表", &OpenScreen<RepoSeikyu_frm>},
    {8, 1, u"消費先台帳", &OpenScreen<RepoDaichou_frm>},
    {13, 2, u"得意先", &OpenScreen<MstDeal_frm>},
    {17, 2, u"得意先初期残", &OpenScreen<TorZan_frm>},
    {3, 2, u"料金表", &OpenScreen<GTanka_frm>},
    {4, 2, u"商品", &OpenScreen<MstHin_frm>},
    {9, 2, u"リース料金", &OpenScreen<Keihoki_frm>},
    {12, 2, u"地区", &OpenScreen<MstRte_frm>},
    {kChangePassword, 3, u"パスワード"},
    {14, 3, u"銀行委託者設定", &OpenScreen<MstBnk_frm>},
    {15, 3, u"郵便委託者設定", &OpenScreen<MstYubin_frm>},
    {kBackupPlace, 3, u"バックアップ場所"},
    {18, 3, u"その他情報", &OpenScreen<etc_frm>},
}};

struct StartSettings {
    QString password;
};

std::int16_t NumberOf(const Recordset& set) {
    return CInt(NumVal(NullToEmpty(set[u"contents"_s])));
}

StartSettings ReadSettings() {
    StartSettings settings;
    Recordset functions = gDb->OpenRecordset(u"SELECT * FROM zSysFunc ORDER BY Code"_s);
    gPrintPreview = false;
    gInvoiceMode = 0;
    if (!functions.Eof()) {
        functions.FindFirst(u"Code=123"_s);
        settings.password = NullToEmpty(functions[u"contents"_s]);
        functions.FindFirst(u"Code=2"_s);
        if (!functions.NoMatch()) gPrintPreview = NumVal(NullToEmpty(functions[u"contents"_s])) == 1;
        functions.FindFirst(u"Code=100"_s);
        if (!functions.NoMatch()) gInvoiceMode = NumberOf(functions);
    }
    functions.Close();

    Recordset options = gDb->OpenRecordset(u"SELECT * FROM UserOP ORDER BY Code"_s);
    if (!options.Eof()) {
        options.FindFirst(u"Code=1"_s);
        gDateMode = options.NoMatch() ? std::int16_t{2} : NumberOf(options);
    }
    options.Close();
    return settings;
}

bool LogIn(const QString& password) {
    if (AskText(u"パスワードを入力してください。"_s, QString()) == password) return true;
    ShowAlert(u"パスワードが異なります。"_s);
    CloseDb();
    QApplication::processEvents();
    return false;
}

}  // namespace

bool main_menu::Start() {
    static SingleInstance guard;
    if (guard.PrevInstance()) return false;
    Form::SetHelp(&Guide_frm::OpenFor);

    SessionEnd::Await([] { Form::Instance<main_menu>().Unload(); });
    bool running = false;
    RunGuarded([&running] {
        Form::Instance<Opening_frm>().ShowModal();
        if (!OpenDb(&MsgBox)) return;
        MigrateDb();
        gTaxRate = 5;
        if (!LogIn(ReadSettings().password)) return;
        Form::Instance<main_menu>().Show();
        running = true;
    });
    return running;
}

main_menu::main_menu() : Form(u"main_menu"_s, u"Akarix"_s) {
    buildBoard();
    previousSize_ = size();
    on(Command_, &CommandButton::Click, [this](int index) { Command_Click(index); });
}

// The board is laid out by hand, since every control is stretched with the window.
void main_menu::buildBoard() {
    constexpr int kMargin = 28;
    constexpr int kColumnWidth = 172;
    constexpr int kGap = 20;
    constexpr int kHeadTop = 24;
    constexpr int kHeadHeight = 34;
    constexpr int kButtonTop = kHeadTop + kHeadHeight + 18;
    constexpr int kButtonHeight = 46;
    constexpr int kPitch = 60;
    constexpr int kMostRows = 6;
    resize(2 * kMargin + 4 * kColumnWidth + 3 * kGap, kButtonTop + kMostRows * kPitch + kMargin - 8);
    setMinimumSize(size() / 2);

    const auto left = [&](int column) { return kMargin + column * (kColumnWidth + kGap); };
    for (int column = 0; column < static_cast<int>(kColumns.size()); ++column) {
        auto* head = new Label(QString::fromUtf16(kColumns[static_cast<size_t>(column)]), this);
        head->setObjectName(u"Label(%1)"_s.arg(column));
        head->setAlignment(Qt::AlignCenter);
        head->setAutoFillBackground(true);
        head->setBackgroundRole(QPalette::Highlight);
        head->setForegroundRole(QPalette::HighlightedText);
        head->setGeometry(left(column), kHeadTop, kColumnWidth, kHeadHeight);
    }
    std::array<int, 4> rows{};
    int tabIndex = 0;
    for (const BoardButton& entry : kBoard) {
        auto* button = new CommandButton(QString::fromUtf16(entry.caption), this);
        Command_.add(entry.index, button);
        int& row = rows[static_cast<size_t>(entry.column)];
        button->setGeometry(left(entry.column), kButtonTop + row * kPitch, kColumnWidth, kButtonHeight);
        SetTabIndex(button, tabIndex++);
        ++row;
    }
    Command_(kUnreachableConsignor).setEnabled(false);
}

void main_menu::Command_Click(int index) {
    if (index == kChangePassword) return ChangePassword();
    if (index == kBackupPlace) return ChangeBackupPlace();
    for (const BoardButton& entry : kBoard)
        if (entry.index == index && entry.open != nullptr) entry.open();
}

void main_menu::ChangePassword() {
    const QString contents = u"contents"_s;
    Recordset row = gDb->OpenRecordset(u"SELECT * FROM zSysFunc WHERE Code=123"_s);
    const QString current = NullToEmpty(row[contents]);
    row.Edit();
    QString answer = AskText(u"パスワードを入力します。"_s, current);
    if (answer.isEmpty()) answer = current;
    if (AskConfirm(answer + u"で更新します。"_s, u"はい"_s, u"いいえ"_s)) {
        row.Fields(contents) = EmptyToBlank(answer);
        row.Update();
    }
    row.Close();
}

void main_menu::QueryUnload(bool& cancel) {
    // Refusing the unload and ending the program from here is the whole exit: nobody is asked, no screen is
    // kept.
    cancel = true;
    // The copy is made of a file that nobody here holds any more.
    RunGuarded([] {
        CloseDb();
        BackUp();
    });
    QCoreApplication::exit(0);
}

// Service alone comes to the settings rows; no button tells of them.
void main_menu::MouseDown(int shift) {
    if (shift == (ShiftMask | CtrlMask | AltMask)) OpenScreen<SysFunc_frm>();
}

bool main_menu::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) activated_ = true;
    return Form::event(event);
}

void main_menu::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    if (!activated_ || isMinimized()) return;
    ResizeForm(*this, previousSize_);
    previousSize_ = size();
}

}  // namespace akarix
