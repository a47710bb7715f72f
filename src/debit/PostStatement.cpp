#include "debit/PostStatement.h"

#include <utility>

#include "debit/DebitQuery.h"
#include "debit/DebitRecords.h"
#include "dialogs/ShowAlert.h"
#include "output/EX.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

constexpr int kFirstRow = 17;
constexpr int kPageLines = 34;
constexpr int kClosingLines = 2;  // the closing block's lines below its head
const QString kCount = u"件"_s;
const QString kYen = u"円"_s;

/// The texts above the lines; the same on every page.
struct Head {
    QString date;
    QString creation;
    Consignor consignor;
};

class PostStatement {
 public:
    explicit PostStatement(Head head) : head_(std::move(head)) {}

    void run(Recordset set);

 private:
    void beginPage();
    void writeLine(const DebitRow& debit);
    void writePageTotal() const;
    void writeClosing() const;
    void put(const char16_t* column, int line, const QString& text) const {
        ExcelCell(QString::fromUtf16(column) + NumStr(kFirstRow + line), text);
    }

    Head head_;
    int line_ = 0;  ///< of the page, the next one to write
    int count_ = 0;
    Currency pageTotal_;
    Currency total_;
};

void PostStatement::run(Recordset set) {
    set.MoveLast();
    const std::int16_t records = CInt(set.RecordCount());
    set.MoveFirst();
    ExcelOpen(u"郵便局口座振替明細表"_s);
    beginPage();
    while (count_ < records) {
        PrintRun::Count(count_, records);
        if (line_ == kPageLines) {
            writePageTotal();
            ExcelPrintPage(true);
            beginPage();
        }
        writeLine(ReadDebitRow(set));
        set.MoveNext();
    }
    if (line_ >= kPageLines - kClosingLines) {
        ExcelPrintPage(true);
        beginPage();
    }
    writeClosing();
    ExcelPrintPage();
    ExcelClose();
}

void PostStatement::beginPage() {
    line_ = 0;
    pageTotal_ = {};
    const Consignor& consignor = head_.consignor;
    ExcelCell(u"A17:AG51"_s, {});
    ExcelCell(u"AC2"_s, head_.date);
    ExcelCell(u"L7"_s, consignor.Keiyaku);
    ExcelCell(u"L8"_s, consignor.Jimusyo);
    ExcelCell(u"L9"_s, consignor.ItakuCode);
    ExcelCell(u"L10"_s, consignor.Itakusya);
    ExcelCell(u"L11"_s, head_.creation);
    ExcelCell(u"L12"_s, consignor.KozaNo);
}

void PostStatement::writeLine(const DebitRow& debit) {
    ++count_;
    put(u"A", line_, NumStr(count_));
    put(u"E", line_, NumStr(debit.Deal));
    put(u"J", line_, debit.Kana);
    put(u"Y", line_, Format(DebitAmount(debit.tGaku, debit.DiscGaku), u"##,###,##0"_s));
    put(u"AG", line_, Format(debit.Stn, u"00000"_s) + u'-' + Format(debit.Koza, u"00000000"_s));
    pageTotal_ += debit.tGaku;
    total_ += debit.tGaku;
    ++line_;
}

void PostStatement::writePageTotal() const {
    put(u"J", line_, u"この頁の小計件数金額   "_s + NumStr(line_) + kCount);
    put(u"Y", line_, NumStr(pageTotal_) + kYen);
}

/// The block's cells are cut otherwise than those of the lines it stands among.
void PostStatement::writeClosing() const {
    for (int line = line_; line <= line_ + kClosingLines; ++line) {
        const QString row = NumStr(kFirstRow + line);
        ExcelMerge(u"A%1:AG%1"_s.arg(row), u"0"_s);
        ExcelMerge(u"A%1:I%1"_s.arg(row), u"1"_s);
        ExcelMerge(u"J%1:O%1"_s.arg(row), u"1"_s);
    }
    put(u"A", line_, u"◎ 合計件数金額情報(ﾄﾚｰﾗﾚｺｰﾄﾞ)"_s);
    put(u"A", line_ + 1, u"合計件数"_s);
    put(u"J", line_ + 1, NumStr(count_) + kCount);
    put(u"A", line_ + 2, u"合計金額"_s);
    put(u"J", line_ + 2, NumStr(total_) + kYen);
}

}  // namespace

void PrintPostStatement(BillingMonth month, const QString& creation, Date opened) {
    TrapPrinting([&] {
        const PrintRun run(u"郵便局口座振替明細表"_s);
        Recordset set = gDb->OpenRecordset(DebitQuery(kPostOffice, month));
        if (set.Eof()) {
            ShowAlert(u"該当データが有りません。"_s);
            return;
        }
        Consignor consignor = LoadPostConsignor();
        const Consignor onDisk = FitPostConsignor(consignor);
        consignor.ItakuCode = onDisk.ItakuCode;
        consignor.Itakusya = onDisk.Itakusya;
        const QString date = u"%1年%2月%3日"_s.arg(Year(opened)).arg(Month(opened)).arg(Day(opened));
        PostStatement({date, creation, consignor}).run(std::move(set));
    });
}

}  // namespace akarix
