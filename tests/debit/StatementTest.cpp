#include "debit/BankStatement.h"
#include "debit/Dealer.h"
#include "debit/PostStatement.h"
#include "platform/print/PdfText.h"

namespace akarix {
namespace {

class Statements : public DebitTest {
 protected:
    void SetUp() override {
        DebitTest::SetUp();
        QDir().mkdir("Prt");
        for (const char* path : {"Prt/口座振替明細表.xlsx", "Prt/郵便局口座振替明細表.xlsx"})
            QFile::copy(QString(AKARIX_SOURCE_DIR "/") + path, path);
    }

    /// Customers from a code on, each with an account of his own and 1,000 yen to pay.
    static void customers(int bank, int from, int to, int fixed = 0) {
        for (int code = from; code <= to; ++code) {
            customer(QString("%1,'ｶﾅ%1',%1,%2,%3,1,'%1',%4")
                         .arg(code)
                         .arg(bank)
                         .arg(bank == 9900 ? 10120 : 21)
                         .arg(fixed),
                     "1000");
        }
    }
    /// \param told whether something is said behind the choice of the printer
    QStringList print(const std::function<void()>& statement, bool told = false) {
        AnswerPrinter(clerk, store.path("out.pdf"));
        if (told) clerk.answerAlert();
        statement();
        const QStringList pages = QFile::exists("out.pdf") ? PdfPages("out.pdf") : QStringList();
        QFile::remove("out.pdf");
        return pages;
    }
    QStringList bank(int code = 123) {
        return print([code] { PrintBankStatement(code, {2023, 4}); });
    }
    QStringList post(bool told = false) {
        return print([] { PrintPostStatement({2023, 4}, "2023/4/26", DateSerial(2023, 4, 20)); }, told);
    }
    /// Which of the texts each page shows, "1" or "0" each.
    static QStringList seen(const QStringList& pages, const QStringList& texts) {
        QStringList all;
        for (const QString& page : pages) {
            QString marks;
            for (const QString& text : texts)
                marks += page.contains(text) ? '1' : '0';
            all += marks;
        }
        return all;
    }
};

TEST_F(Statements, TheBanksLinesAreBalances) {
    customers(123, 1, 2, 300);
    gDb->Execute("UPDATE Deal SET Koza='1234567',Namae='イノウエ' WHERE Code=2");
    expectTexts(bank().join('|'), {"ｷﾀｷﾞﾝｺｳ", "平成35年4月分", "1ﾍﾟｰｼﾞ", "10123-021-1-0000001ｶﾅ1",
                                   "20123-021-1-1234567ｶﾅ2イノウエ1,000", "2件2,000"});
    gDb->Execute("UPDATE Bnk SET BkName=NULL");
    EXPECT_TRUE(bank().join('|').contains("銀行コード:123"));
    EXPECT_EQ(bank(124), QStringList()) << "nothing to ask for: not a word";
}

TEST_F(Statements, WhereThePagesTurn) {
    const QStringList bankTexts{"件", "0000001", "0000042", "0000043", "1ﾍﾟｰｼﾞ", "2ﾍﾟｰｼﾞ"};
    // The sums are those of the balances, whatever fixed amount stands on the lines.
    const QStringList postTexts{"小計件数金額34件34000円", "合計件数", "ｶﾅ1001", "ｶﾅ1034", "ｶﾅ1035"};
    const struct {
        int lines;
        QStringList bank;  ///< a full page goes out, and the total behind it finds no line to stand on
        QStringList post;
    } cases[] = {
        {31, {"110010"}, {"01100"}},
        {32, {"110010"}, {"00100", "01000"}},
        {35, {"110010"}, {"10110", "01001"}},
        {43, {"011010", "100101"}, {"10110", "01001"}},
        {69, {"011010", "100101"}, {"10110", "10001", "01000"}},
    };
    int made = 0;
    for (const auto& [lines, onBank, onPost] : cases) {
        customers(123, made + 1, lines);
        customers(9900, 1000 + made + 1, 1000 + lines, 300);
        made = lines;
        EXPECT_EQ(seen(bank(), bankTexts), onBank) << lines;
        EXPECT_EQ(seen(post(), postTexts), onPost) << lines;
    }
    expectTexts(post().last(), {"691069ｶﾅ106930010120-00001069", "合計件数69件", "合計金額69000円"});
}

TEST_F(Statements, ThePostOfficesLinesAreWhatIsDebitedAndItsSumsTheBalances) {
    customers(9900, 1, 1, 300);
    customers(9900, 2, 2, 3000);
    const QString page = post().join('|');
    expectTexts(page, {"2023年4月20日", "契約種別自払", "南事務センター", "01234567", "ｱｶﾘｸｽｶﾞｽ(ｶ",
                       "2023/4/26", "98765", "11ｶﾅ130010120-00000001", "22ｶﾅ21,00010120-00000002",
                       "◎合計件数金額情報(ﾄﾚｰﾗﾚｺｰﾄﾞ)", "合計件数2件", "合計金額2000円"});
    EXPECT_FALSE(page.contains("小計"));
}

TEST_F(Statements, TheClosingBlocksFiguresHaveColumnsJToO) {
    customer("1,'ｶﾅ',1,9900,10120,1,'1',0", "99999999999999");
    AnswerPrinter(clerk, store.path("out.pdf"));
    PrintPostStatement({2023, 4}, "2023/4/26", DateSerial(2023, 4, 20));
    // Seventeen pixels a column: the figure shrinks to six of them, not to the one that stood alone before,
    // nor does it spread over the fifteen of the lines above.
    constexpr double column = 17 * 0.75;
    const double width = PdfBox("out.pdf", "99999999999999円").width();
    EXPECT_GT(width, 5 * column);
    EXPECT_LT(width, 6 * column);
}

TEST_F(Statements, WhatComesToNothing) {
    EXPECT_EQ(post(true), QStringList());
    EXPECT_EQ(clerk.lastSaid(), "該当データが有りません。");

    customers(9900, 1, 1);
    QDir("Prt").removeRecursively();
    const std::function<void()> statements[] = {[] {
                                                    PrintBankStatement(9900, {2023, 4});
                                                },
                                                [] {
                                                    PrintPostStatement({2023, 4}, {}, {});
                                                }};
    for (const auto& statement : statements) {
        AnswerEscape(clerk, "Printer_frm");
        statement();  // the template is not even looked for
        print(statement, true);
        EXPECT_TRUE(clerk.lastSaid().startsWith("1004"));
    }
}

}  // namespace
}  // namespace akarix
