#include <QListWidget>

#include "debit/BankStatement.h"
#include "debit/PostStatement.h"
#include "platform/forms/TextBox.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/DateSerial.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Statements : public ScreenTest {
 protected:
    Statements() {
        gPrintPreview = false;
        QDir().mkdir("Prt");
        for (const char* name : {"口座振替明細表", "郵便局口座振替明細表"}) {
            const QString path = QString("Prt/%1.xlsx").arg(name);
            QFile::copy(QString(AKARIX_SOURCE_DIR "/") + path, path);
        }
        ScratchStore::run(
            "INSERT INTO Bnk(Code,BkName) VALUES(5,'ｱｵｲ');\n"
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,KozaNo,Keiyaku,Jimusyo) "
            "VALUES(9900,'990456','ﾀﾞﾝﾀﾞ','0123456','自払','南事務センター')");
    }

    /// Customers from a code on, each with an account of his own and 1,000 yen to pay in April 2023.
    static void customers(int bank, int from, int count, const char* fixed = "0") {
        for (int code = from; code < from + count; ++code) {
            gDb->Execute(QString("INSERT INTO Deal(Code,Kana,Namae,Rte,Haisou,Bnk,Stn,Kind,Koza,DiscGaku) "
                                 "VALUES(%1,'ｶﾅ%1','名前%1',1,%1,%2,%3,1,'%4',%5)")
                             .arg(code)
                             .arg(bank)
                             .arg(bank == 9900 ? 10120 : 21)
                             .arg(code, 7, 10, QChar('0'))
                             .arg(fixed));
            gDb->Execute(
                QString("INSERT INTO TtoD(Nendo,Getudo,Deal,Gaku) VALUES(2023,4,%1,1000)").arg(code));
        }
    }
    void expectPrinter() {
        clerk.expect("Printer_frm", [this](QWidget&) {
            auto& printers = clerk.find<QListWidget>("Printers");
            printers.setCurrentRow(printers.count() - 1);
            clerk.find<TextBox>("Path").SetText(store.path("out.pdf"));
            clerk.click("Print");
        });
    }
    /// The pages that a statement leaves, without blanks.
    QStringList print(const std::function<void()>& statement) {
        expectPrinter();
        statement();
        QStringList pages = QFile::exists("out.pdf") ? PdfPages("out.pdf") : QStringList();
        QFile::remove("out.pdf");
        for (QString& page : pages) {
            page.remove(QChar(' '));
        }
        return pages;
    }
    QStringList bank(int code = 5) {
        return print([code] { PrintBankStatement(code, 2023, 4); });
    }
    QStringList post(int getudo = 4) {
        return print([getudo] { PrintPostStatement(2023, getudo, "2023/4/26", DateSerial(2023, 4, 20)); });
    }
    /// Which of the texts a page shows, "1" or "0" each.
    static QString seen(const QString& page, const QStringList& texts) {
        QString marks;
        for (const QString& text : texts) {
            marks += page.contains(text) ? '1' : '0';
        }
        return marks;
    }

    ScratchStore store;
};

TEST_F(Statements, TheBanksLinesAreBalances) {
    customers(5, 1, 2, "300");
    gDb->Execute("UPDATE Deal SET Koza='12345' WHERE Code=2");
    const QStringList pages = bank();
    ASSERT_EQ(pages.size(), 1);
    for (const char* text : {"ｱｵｲ", "平成35年4月分", "1ﾍﾟｰｼﾞ", "10005-021-1-0000001ｶﾅ1名前11,000",
                             "20005-021-1-0012345ｶﾅ2名前21,000", "2件2,000"}) {
        EXPECT_TRUE(pages[0].contains(text)) << text << " in " << pages[0].toStdString();
    }
}

TEST_F(Statements, TheBanksPagesTurnAfter42Lines) {
    customers(5, 1, 41);
    const QStringList part{"41件41,000", "0000041", "0000042", "0000043", "43件43,000", "1ﾍﾟｰｼﾞ", "2ﾍﾟｰｼﾞ"};
    QStringList pages = bank();
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(seen(pages[0], part), "1100010");

    customers(5, 42, 1);
    pages = bank();
    ASSERT_EQ(pages.size(), 1) << "a full page goes out, and the total finds none to stand on";
    EXPECT_EQ(seen(pages[0], part), "0110010");
    EXPECT_FALSE(pages[0].contains("件")) << pages[0].toStdString();

    customers(5, 43, 1);
    pages = bank();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(seen(pages[0], part), "0110010");
    EXPECT_EQ(seen(pages[1], part), "0001101") << pages[1].toStdString();
}

TEST_F(Statements, ABankWithoutANameIsNamedByItsCode) {
    customers(7, 1, 1);
    EXPECT_TRUE(bank(7).join("").contains("銀行コード:7"));
    EXPECT_EQ(bank(8), QStringList()) << "nothing to ask for: not a word";
}

TEST_F(Statements, ThePostOfficesLinesAreWhatIsDebitedAndItsSumsTheBalances) {
    customers(9900, 1, 1, "300");
    customers(9900, 2, 1, "3000");
    const QStringList pages = post();
    ASSERT_EQ(pages.size(), 1);
    for (const char* text : {"2023年4月20日", "契約種別自払", "南事務センター", "00990456", "ﾀﾞﾝﾀﾞ",
                             "2023/4/26", "0123456", "11ｶﾅ130010120-00000001", "22ｶﾅ21,00010120-00000002",
                             "◎合計件数金額情報(ﾄﾚｰﾗﾚｺｰﾄﾞ)", "合計件数2件", "合計金額2000円"}) {
        EXPECT_TRUE(pages[0].contains(text)) << text << " in " << pages[0].toStdString();
    }
    EXPECT_FALSE(pages[0].contains("小計"));
}

TEST_F(Statements, ThePostOfficesPages) {
    const QStringList part{"小計件数金額34件34000円", "合計件数", "ｶﾅ11,000", "ｶﾅ34", "ｶﾅ35"};
    const struct {
        int lines;
        QStringList pages;
    } cases[] = {
        {31, {"01100"}},          {32, {"00100", "01000"}},          {34, {"00110", "01000"}},
        {35, {"10110", "01001"}}, {67, {"10110", "00001", "01000"}},
    };
    int made = 0;
    for (const auto& [lines, expected] : cases) {
        customers(9900, made + 1, lines - made);
        made = lines;
        QStringList pages = post();
        for (QString& page : pages) {
            page = seen(page, part);
        }
        EXPECT_EQ(pages, expected) << lines;
    }
}

TEST_F(Statements, WhatComesToNothing) {
    expectPrinter();
    clerk.answerAlert();
    PrintPostStatement(2023, 4, {}, DateSerial(2023, 4, 20));
    EXPECT_EQ(clerk.lastSaid(), "該当データが有りません。");

    customers(9900, 1, 1);
    QDir("Prt").removeRecursively();
    for (const auto& statement : {std::function([] { PrintBankStatement(9900, 2023, 4); }),
                                  std::function([] { PrintPostStatement(2023, 4, {}, {}); })}) {
        clerk.expect("Printer_frm", [this](QWidget&) { clerk.press(Qt::Key_Escape); });
        statement();  // the template is not even looked for
        expectPrinter();
        clerk.answerAlert();
        statement();
        EXPECT_TRUE(clerk.lastSaid().startsWith("1004")) << clerk.lastSaid().toStdString();
    }
}

}  // namespace
}  // namespace akarix
