#include "debit/PostStatement.h"

#include <utility>

#include "debit/DebitQuery.h"
#include "debit/DebitRecords.h"
#include "dialogs/ShowAlert.h"
#include "output/EX.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/CInt.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Format.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

constexpr int kFirstRow = 17;
constexpr int kPageLines = 34;
constexpr int kClosingLines = 2;  // the closing block's lines below its head
const QString kCount = QStringLiteral("件");
const QString kYen = QStringLiteral("円");

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
    ExcelOpen(QStringLiteral("郵便局口座振替明細表"));
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
    ExcelCell(QStringLiteral("A17:AG51"), {});
    ExcelCell(QStringLiteral("AC2"), head_.date);
    ExcelCell(QStringLiteral("L7"), consignor.Keiyaku);
    ExcelCell(QStringLiteral("L8"), consignor.Jimusyo);
    ExcelCell(QStringLiteral("L9"), consignor.ItakuCode);
    ExcelCell(QStringLiteral("L10"), consignor.Itakusya);
    ExcelCell(QStringLiteral("L11"), head_.creation);
    ExcelCell(QStringLiteral("L12"), consignor.KozaNo);
}

void PostStatement::writeLine(const DebitRow& debit) {
    ++count_;
    put(u"A", line_, NumStr(count_));
    put(u"E", line_, NumStr(debit.Deal));
    put(u"J", line_, debit.Kana);
    put(u"Y", line_, Format(DebitAmount(debit.tGaku, debit.DiscGaku), QStringLiteral("##,###,##0")));
    put(u"AG", line_,
        Format(debit.Stn, QStringLiteral("00000")) + u'-' + Format(debit.Koza, QStringLiteral("00000000")));
    pageTotal_ += debit.tGaku;
    total_ += debit.tGaku;
    ++line_;
}

void PostStatement::writePageTotal() const {
    put(u"J", line_, QStringLiteral("この頁の小計件数金額   ") + NumStr(line_) + kCount);
    put(u"Y", line_, NumStr(pageTotal_) + kYen);
}

/// The block's cells are cut otherwise than those of the lines it stands among.
void PostStatement::writeClosing() const {
    for (int line = line_; line <= line_ + kClosingLines; ++line) {
        const QString row = NumStr(kFirstRow + line);
        ExcelMerge(QStringLiteral("A%1:AG%1").arg(row), QStringLiteral("0"));
        ExcelMerge(QStringLiteral("A%1:I%1").arg(row), QStringLiteral("1"));
        ExcelMerge(QStringLiteral("J%1:O%1").arg(row), QStringLiteral("1"));
    }
    put(u"A", line_, QStringLiteral("◎ 合計件数金額情報(ﾄﾚｰﾗﾚｺｰﾄﾞ)"));
    put(u"A", line_ + 1, QStringLiteral("合計件数"));
    put(u"J", line_ + 1, NumStr(count_) + kCount);
    put(u"A", line_ + 2, QStringLiteral("合計金額"));
    put(u"J", line_ + 2, NumStr(total_) + kYen);
}

}  // namespace

void PrintPostStatement(int nendo, int getudo, const QString& creation, Date opened) {
    TrapPrinting([&] {
        const PrintRun run(QStringLiteral("郵便局口座振替明細表"));
        Recordset set = gDb->OpenRecordset(DebitQuery(kPostOffice, nendo, getudo));
        if (set.Eof()) {
            ShowAlert(QStringLiteral("該当データが有りません。"));
            return;
        }
        Consignor consignor;
        LoadPostConsignor(consignor);
        const Consignor onDisk = FitPostConsignor(consignor);
        consignor.ItakuCode = onDisk.ItakuCode;
        consignor.Itakusya = onDisk.Itakusya;
        const QString date =
            QStringLiteral("%1年%2月%3日").arg(Year(opened)).arg(Month(opened)).arg(Day(opened));
        PostStatement({date, creation, consignor}).run(std::move(set));
    });
}

}  // namespace akarix
