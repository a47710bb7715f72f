#include "masters/MstDeal_frm.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/Literals.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// The list the customer master prints.
class CustomerList : public ScreenTest {
 protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), store.path(u"Prt"_s)));
        gPrintPreview = false;
    }
    static void insert(const QString& columns, const QString& values) {
        gDb->Execute(u"INSERT INTO Deal("_s + columns + u") VALUES("_s + values + u")"_s);
    }
    static void insertNames(int first, int last) {
        for (int i = first; i <= last; ++i)
            insert(u"Code,Namae"_s, u"%1,'客%1番'"_s.arg(i));
    }
    void put(const char* box, const QString& text) { clerk.find<TextBox>(QString(box)).SetText(text); }
    /// Prints into a new file, and gives the text of its pages.
    QStringList print() {
        const QString path = store.path(u"list%1.pdf"_s.arg(++lists_));
        AnswerPrinter(clerk, path);
        clerk.click("Btn(3)");
        return QFile::exists(path) ? PdfPages(path) : QStringList();
    }
    /// The customers "客n番" of a page, in their order.
    static QString namesOn(const QString& page) {
        static const QRegularExpression name(u"客(\\d+)番"_s);
        QStringList found;
        for (const auto& match : name.globalMatch(page))
            found += match.captured(1);
        return found.join(u',');
    }

    ScratchStore store;

 private:
    int lists_ = 0;
};

TEST_F(CustomerList, ShowsAddressesInTheOrderOfTheRound) {
    insert(u"Code,Rte,Haisou,Kana,Namae,Yubin,Addr1,Addr2,TEL,Fax"_s,
           u"1,2,10,'ﾔﾏﾀﾞ','客1番','150-0001','渋谷区','神宮前','03-1','03-2'"_s);
    insert(u"Code,Rte,Haisou,Namae,Bnk,Stn,Koza"_s, u"2,1,20,'客2番',5,7,'12345'"_s);
    insert(u"Code,Rte,Haisou,Namae,Bnk"_s, u"3,1,10,'客3番',9"_s);
    OpenScreen<MstDeal_frm>();
    const QString all = print().value(0);
    EXPECT_EQ(namesOn(all), u"3,2,1"_s);
    EXPECT_TRUE(all.contains(u"1ﾔﾏﾀﾞ客1番150-0001渋谷区神宮前03-103-2"_s)) << all.toStdString();
    EXPECT_FALSE(all.contains(u"口座番号"_s));

    put("eSearchBnk", u"5"_s);
    const QString bank = print().value(0);
    EXPECT_EQ(namesOn(bank), u"2"_s);
    for (const QString& text : {u"銀行-支店"_s, u"口座番号"_s, u"2客2番0005-0070012345"_s})
        EXPECT_TRUE(bank.contains(text)) << bank.toStdString();
}

TEST_F(CustomerList, TheFirstBoxAloneBoundsIt) {
    insertNames(1, 3);
    OpenScreen<MstDeal_frm>();
    put("ebox(20)", u"2"_s);
    put("ebox(21)", u"3"_s);
    EXPECT_EQ(namesOn(print().value(0)), u"2"_s);
    put("ebox(20)", {});
    EXPECT_EQ(namesOn(print().value(0)), u"1,2,3"_s);
    put("ebox(20)", u"77"_s);
    EXPECT_EQ(print(), QStringList()) << "nobody: no page";
}

TEST_F(CustomerList, HoldsFiftyEightToAPage) {
    insertNames(1, 58);
    OpenScreen<MstDeal_frm>();
    EXPECT_EQ(print().size(), 1);
    insertNames(59, 59);
    const QStringList pages = print();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(namesOn(pages[1]), u"59"_s);
}

}  // namespace
}  // namespace akarix
