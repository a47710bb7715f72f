#include "masters/BKItaku_frm.h"
#include "masters/MstBnk_frm.h"
#include "masters/MstYubin_frm.h"
#include "platform/forms/FlexGrid.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Two banks and the post office.
class ConsignorMasters : public ScreenTest {
 protected:
    ConsignorMasters() {
        const QString insert =
            u"INSERT INTO Bnk(Code,Stn,BkName,StnName,ItakuCode,Itakusya,fName,Syurui,KozaNo,Saifurikae) "_qs;
        for (const char16_t* row : {u"VALUES(5,1,'ｱｵｲ','ﾎﾝﾃﾝ','0000012345','ﾀﾞﾝﾀﾞ','aoi','1','0001234',NULL)",
                                    u"VALUES(120,33,'ﾐﾄﾞﾘ','ｴｷﾏｴ','77','ﾀﾞﾝﾀﾞ','A:\\D\\m','2','9',NULL)",
                                    u"VALUES(9900,990,'ﾕｳﾋﾞﾝ','ﾐﾅﾐ','10990456','ﾀﾞﾝﾀﾞ','j','1','12','15')"}) {
            gDb->Execute(insert + QString::fromUtf16(row));
        }
    }

    QString shown() {
        QStringList texts;
        for (int i = 0; clerk.window()->findChild<TextBox*>(u"ebox(%1)"_qs.arg(i)); ++i) {
            texts += clerk.text(u"ebox(%1)"_qs.arg(i));
        }
        return texts.join(u'/');
    }
    void put(int field, const QString& text) { clerk.find<TextBox>(u"ebox(%1)"_qs.arg(field)).SetText(text); }
    void fillAll(const QStringList& texts) {
        for (const QString& text : texts) {
            clerk.fill(text);
        }
    }
    static QStringList stored(const QString& columns = u"Code,Stn"_qs) {
        return ScratchStore::rows(u"SELECT "_qs + columns + u" FROM Bnk ORDER BY Code"_qs);
    }

    ScratchStore store;
};

const QString kAoi = u"0005/001/ｱｵｲ/ﾎﾝﾃﾝ/0000012345/ﾀﾞﾝﾀﾞ/aoi/1/0001234"_qs;
const QString kMidori = u"0120/033/ﾐﾄﾞﾘ/ｴｷﾏｴ/77/ﾀﾞﾝﾀﾞ/A:\\D\\m/2/9"_qs;
const QString kNewPost = u"9900/ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ///jiharai//////"_qs;

TEST_F(ConsignorMasters, ANewBankIsTypedThroughAndSavedByEnter) {
    OpenScreen<MstBnk_frm>();
    EXPECT_EQ(shown(), u"////////"_qs);
    fillAll({u"310"_qs, u"7"_qs, u"ｻｸﾗ"_qs, u"ﾋｶﾞｼ"_qs, u"4711"_qs, u"ﾀﾞﾝﾀﾞ"_qs, u"C:\\X\\s"_qs, u"2"_qs,
             u"88"_qs});
    clerk.enter();
    EXPECT_EQ(stored(u"Code,Stn,BkName,StnName,ItakuCode,Itakusya,fName,Syurui,KozaNo"_qs).at(2),
              u"310|7|ｻｸﾗ|ﾋｶﾞｼ|4711|ﾀﾞﾝﾀﾞ|C:\\X\\s|2|88"_qs);
    EXPECT_EQ(shown(), u"////////"_qs);
    EXPECT_EQ(clerk.focusedName(), u"ebox(0)"_qs);
}

TEST_F(ConsignorMasters, ANewPostOfficeNeedsNoNames) {
    gDb->Execute(u"DELETE FROM Bnk WHERE Code=9900"_qs);
    OpenScreen<MstYubin_frm>();
    EXPECT_EQ(shown(), kNewPost);
    clerk.enter();
    EXPECT_EQ(shown(), kNewPost) << "an unknown code keeps the defaults";
    fillAll({u"ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ"_qs, u"10990456"_qs, u"ﾀﾞﾝﾀﾞ"_qs, u"jiharai"_qs, u"12"_qs, u"990"_qs, u""_qs,
             u"20"_qs, u"自動払込"_qs, u"南事務センター"_qs});
    clerk.enter();
    EXPECT_EQ(stored(u"Code,Stn,BkName,StnName,ItakuCode,Itakusya,fName,KozaNo,Saifurikae,Keiyaku,Jimusyo"_qs)
                  .back(),
              u"9900|990|ﾕｳｾｲｼﾖｳﾁﾖｷﾝｷﾖｸ| |10990456|ﾀﾞﾝﾀﾞ|jiharai|12|20|自動払込|南事務センター"_qs);
    EXPECT_EQ(shown(), kNewPost);
}

/// What is asked, in its order: each message is answered by filling its field, until the row is saved.
TEST_F(ConsignorMasters, AskForWhatIsMissingOneByOne) {
    struct Demand {
        int field;
        const char16_t* message;
        const char16_t* text;
    };
    const struct {
        void (*open)();
        std::vector<int> emptied;
        std::vector<Demand> demands;
        const char16_t* saved;
    } screens[] = {
        {&OpenScreen<MstBnk_frm>,
         {},
         {{0, u"銀行コードを入れてください。", u"44"},
          {1, u"支店を入れてください。", u"3"},
          {2, u"銀行名を入れてください。", u"ﾅ"},
          {3, u"支店名を入れてください。", u"ﾆ"},
          {4, u"委託者コードを入れてください。", u"5"},
          {5, u"委託者名を入れてください。", u"ﾇ"},
          {6, u"ファイル名を入れてください。", u"f"},
          {7, u"種別を入れてください。", u"1"},
          {8, u"口座番号を入れてください。", u"6"}},
         u"44|3|ﾅ|5|ﾇ|f|6"},
        {&OpenScreen<MstYubin_frm>,
         {0, 1, 4},
         {{0, u"コードを入れてください。", u"990"},
          {0, u"コードを入れてください。", u"9901"},
          {1, u"郵便局を入れてください。", u"ﾅ"},
          {2, u"委託者コードを入れてください。", u"5"},
          {3, u"委託者名を入れてください。", u"ﾇ"},
          {4, u"ファイル名を入れてください。", u"f"},
          {5, u"口座番号を入れてください。", u"6"},
          {6, u"支店を入れてください。", u"3"}},
         u"9901|3|ﾅ|5|ﾇ|f|6"},
    };
    const QString columns = u"Code,Stn,BkName,ItakuCode,Itakusya,fName,KozaNo"_qs;
    for (const auto& screen : screens) {
        screen.open();
        for (const int field : screen.emptied) {
            put(field, {});
        }
        for (const Demand& demand : screen.demands) {
            clerk.answerAlert();
            clerk.click(u"Btn(2)"_qs);
            EXPECT_EQ(clerk.lastSaid(), QString::fromUtf16(demand.message));
            EXPECT_EQ(clerk.focusedName(), u"ebox(%1)"_qs.arg(demand.field));
            EXPECT_FALSE(stored(columns).contains(QString::fromUtf16(screen.saved)));
            put(demand.field, QString::fromUtf16(demand.text));
        }
        clerk.click(u"Btn(2)"_qs);
        EXPECT_TRUE(stored(columns).contains(QString::fromUtf16(screen.saved)));
        clerk.clearDesk();
    }
}

TEST_F(ConsignorMasters, TheBanksWalkersPassThePostOfficeBy) {
    OpenScreen<MstBnk_frm>();
    clerk.fill(u"9900"_qs);
    EXPECT_TRUE(shown().startsWith(u"9900/990/ﾕｳﾋﾞﾝ"_qs)) << "typed, it comes";
    put(2, u"ｶﾜﾂﾀ"_qs);
    clerk.click(u"Btn(2)"_qs);
    EXPECT_EQ(stored(u"BkName,Saifurikae"_qs).back(), u"ｶﾜﾂﾀ|15"_qs)
        << "and is saved, without harm to what this screen does not show";

    clerk.fill(u"5"_qs);
    for (const auto& [button, screen] :
         std::vector<std::pair<QString, QString>>{{u"cmdRight"_qs, kMidori},
                                                  {u"cmdRight"_qs, u"////////"_qs},
                                                  {u"cmdRight"_qs, kAoi},
                                                  {u"cmdRight"_qs, kMidori},
                                                  {u"cmdLeft"_qs, kAoi},
                                                  {u"cmdLeft"_qs, u"////////"_qs}}) {
        clerk.click(button);
        EXPECT_EQ(shown(), screen) << button.toStdString();
    }
}

TEST_F(ConsignorMasters, ThePostOfficesWalkersFindTheWayBack) {
    OpenScreen<MstYubin_frm>();
    clerk.click(u"cmdLeft"_qs);
    EXPECT_TRUE(shown().startsWith(u"0120/ﾐﾄﾞﾘ/77/"_qs)) << shown().toStdString();
    clerk.click(u"cmdRight"_qs);
    EXPECT_EQ(shown(), u"9900/ﾕｳﾋﾞﾝ/10990456/ﾀﾞﾝﾀﾞ/j/12/990/ﾐﾅﾐ/15//"_qs);
    clerk.click(u"cmdRight"_qs);
    EXPECT_EQ(shown(), kNewPost);
}

TEST_F(ConsignorMasters, DeletesTheBranchThatStandsOnTheScreen) {
    const struct {
        void (*open)();
        int branchField;
        const char16_t* code;
        const char16_t* branch;
    } screens[] = {{&OpenScreen<MstBnk_frm>, 1, u"120", u"033"},
                   {&OpenScreen<MstYubin_frm>, 6, u"9900", u"990"}};
    qsizetype rows = 3;
    for (const auto& screen : screens) {
        screen.open();
        const QString code = QString::fromUtf16(screen.code);
        const struct {
            const char* why;
            QString branch;
            bool yes;
            qsizetype gone;
        } cases[] = {{"refused", QString::fromUtf16(screen.branch), false, 0},
                     {"another branch", u"034"_qs, true, 0},
                     {"confirmed", QString::fromUtf16(screen.branch), true, 1}};
        for (const auto& [why, branch, yes, gone] : cases) {
            clerk.click(u"Btn(0)"_qs);
            clerk.fill(code);
            put(screen.branchField, branch);
            clerk.answerConfirm(yes);
            clerk.click(u"Btn(1)"_qs);
            EXPECT_EQ(clerk.lastSaid(), u"この委託を削除します。"_qs);
            rows -= gone;
            EXPECT_EQ(stored().size(), rows) << why;
        }
        EXPECT_FALSE(stored(u"Code"_qs).contains(code));
        clerk.clearDesk();
    }
}

TEST_F(ConsignorMasters, TheBankIsPickedFromTheLookup) {
    OpenScreen<MstBnk_frm>();
    clerk.expect(u"Help_frm"_qs,
                 [this](QWidget&) { clerk.clickCell(clerk.find<FlexGrid>(u"List"_qs), 1, 0); });
    clerk.click(u"F6(0)"_qs);
    EXPECT_EQ(shown(), kMidori);
}

TEST_F(ConsignorMasters, TheOptionsScreenKeepsItsNineteenTexts) {
    ScratchStore::run(
        u"DELETE FROM UserOP WHERE Code>=4;\n"
        u"INSERT INTO UserOP(Code,contents) VALUES(12,'123');\n"
        u"INSERT INTO UserOP(Code,contents) VALUES(23,'他')"_qs);
    OpenScreen<BKItaku_frm>();
    EXPECT_EQ(shown(), u"////////123//////////"_qs);
    fillAll({u"0005"_qs, u"1"_qs});
    put(18, u"南事務センター"_qs);
    clerk.click(u"Btn(0)"_qs);
    EXPECT_FALSE(clerk.isOpen(u"BKItaku_frm"_qs));
    const QStringList options =
        ScratchStore::rows(u"SELECT Code,contents FROM UserOP WHERE Code>=4 ORDER BY Code"_qs);
    ASSERT_EQ(options.size(), 20);
    EXPECT_EQ((QStringList{options[0], options[1], options[2], options[8], options[18], options[19]}),
              (QStringList{u"4|0005"_qs, u"5|1"_qs, u"6| "_qs, u"12|123"_qs, u"22|南事務センター"_qs,
                           u"23|他"_qs}));
    OpenScreen<BKItaku_frm>();
    EXPECT_EQ(shown(), u"0005/1///////123//////////南事務センター"_qs);
}

}  // namespace
}  // namespace akarix
