#include "platform/forms/FlexGrid.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"
#include "shell/Screens.h"
#include "store/Tables.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "values/Text.h"

namespace akarix {
namespace {

/// Rows of the widest numbers that their columns hold, on every screen that shows them. Texts are left out:
/// some columns are wider than their boxes, for what comes from elsewhere.
class Boxes : public ScreenTest {
 protected:
    Boxes() {
        for (const TableDef& table : Tables())
            if (QStringList{"Deal", "Hin", "Rte", "Bnk", "GasKeisan", "Dud", "Dny", "Dbn"}.contains(
                    table.name))
                addWidestRow(table);
    }
    static void addWidestRow(const TableDef& table) {
        QStringList columns;
        QStringList values;
        for (const ColumnDef& column : table.columns) {
            const bool signedLong = column.name == u"Haisou"_s;
            const bool key = column.name == u"Code"_s || column.name == u"Ptn"_s;
            columns += column.name;
            QString value = u"Null"_s;
            if (column.type == FieldType::Long)  // one below the highest, so that the next is the highest
                value = signedLong ? u"-2147483648"_s : u"2147483646"_s;
            if (column.type == FieldType::Integer) value = key ? u"32766"_s : u"-32768"_s;
            if (column.type == FieldType::Currency) value = u"-922337203685476.5807"_s;
            if (column.type == FieldType::Date) value = u"#2023/12/31#"_s;
            values += value;
        }
        ScratchStore::run(
            u"INSERT INTO %1(%2) VALUES(%3)"_s.arg(table.name, columns.join(u','), values.join(u',')));
    }
    /// How many boxes of the present window hold something; none may hold more than its bytes.
    int filledBoxes(const QString& screen) {
        int filled = 0;
        for (const TextBox* box : clerk.window()->findChildren<TextBox*>()) {
            if (box->MaxLength() == 0 || box->Text().isEmpty()) continue;
            EXPECT_EQ(CutBytes(box->Text(), box->MaxLength()), box->Text())
                << screen.toStdString() << ' ' << box->objectName().toStdString();
            ++filled;
        }
        return filled;
    }

    ScratchStore store;
};

TEST_F(Boxes, HoldTheWidestNumberOfTheirColumn) {
    const QString highLong = u"2147483646"_s;
    const QString highInteger = u"32766"_s;
    const struct {
        const char* screen;
        std::function<void()> open;
        QString code;
        int filled;
    } cases[] = {
        {"MstDeal_frm", &OpenScreen<MstDeal_frm>, highLong, 13},
        {"MstHin_frm", &OpenScreen<MstHin_frm>, highLong, 2},
        {"MstRte_frm", &OpenScreen<MstRte_frm>, highInteger, 2},
        {"MstBnk_frm", &OpenScreen<MstBnk_frm>, highInteger, 2},
        {"MstYubin_frm", &OpenScreen<MstYubin_frm>, highInteger, 2},
        {"ms_frm",
         [] {
             Form::Instance<ms_frm>().Show();
             Form::Instance<ms_frm>().init(u"Dbn"_s);
         },
         highLong, 1},
        {"Slip_frm", &OpenScreen<Slip_frm>, highLong, 7},
        {"SlipN2_frm", &OpenScreen<SlipN2_frm>, highLong, 6},
        {"GTanka_frm", &OpenScreen<GTanka_frm>, highInteger, 1},
    };
    for (const auto& c : cases) {
        c.open();
        clerk.settle();
        EXPECT_GE(filledBoxes(c.screen), c.screen == QByteArray("MstYubin_frm") ? 1 : 0);
        auto& code = clerk.find<TextBox>("ebox(0)");
        code.SetText(c.code);
        code.setFocus();
        clerk.enter();
        EXPECT_EQ(filledBoxes(c.screen), c.filled) << c.screen;
    }
    clerk.clickCell(clerk.find<FlexGrid>("GTanka_frm/ListK"), 1, 1);
    EXPECT_EQ(filledBoxes("GTanka_frm"), 5);
}

TEST_F(Boxes, OfCodesTakeAnyCode) {
    const struct {
        std::function<void()> open;
        QStringList codes;
        QStringList routes;
    } cases[] = {
        {&OpenScreen<SlipG_frm>, {"ebox(4)"}, {"ebox(2)", "ebox(3)"}},
        {&OpenScreen<TorZan_frm>, {"ebox(3)"}, {"ebox(2)"}},
        {&OpenScreen<MstDeal_frm>, {"ebox(20)", "ebox(21)"}, {"eSearchBnk"}},
        {&OpenScreen<SeikyuPrt_frm>, {"ebox(3)", "ebox(4)"}, {"ebox(5)"}},
        {&OpenScreen<RepoSeikyu_frm>, {"ebox(2)", "ebox(3)"}, {"ebox(4)"}},
        {&OpenScreen<RepoDaichou_frm>, {"ebox(2)"}, {}},
        {&OpenScreen<MstTanka_frm>, {}, {"ebox(0)"}},
        {&OpenScreen<Seikyu_frm>, {}, {"ebox(5)"}},
        {&OpenScreen<SysFunc_frm>, {"ebox(0)"}, {}},
        {[] { Form::Instance<HelpDeal_frm>().Show(); }, {}, {"ebox(2)"}},
    };
    const auto keeps = [this](const QString& name, const QString& number) {
        auto& box = clerk.find<TextBox>(name);
        box.clear();
        box.setFocus();
        clerk.type(number);
        EXPECT_EQ(box.Text(), number)
            << clerk.window()->objectName().toStdString() << ' ' << name.toStdString();
    };
    for (const auto& c : cases) {
        c.open();
        clerk.settle();
        for (const QString& name : c.codes)
            keeps(name, "2147483647");
        for (const QString& name : c.routes)
            keeps(name, "-32768");
    }
}

}  // namespace
}  // namespace akarix
