#include "toolkit/GridEdit.h"

#include "platform/forms/Form.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Sheet : public Form, public GridForm {
 public:
    Sheet() : Form(u"Sheet"_s, u"検針"_s) {
        resize(600, 300);
        list.setGeometry(20, 30, 500, 200);
        box.hide();
        combo.hide();
    }
    TextBox& tBox() override { return box; }
    ComboBox* cbBox() override { return &combo; }
    void SetCombo(const QString& gridName) override {
        asked = gridName;
        throw RuntimeError(5);
    }

    FlexGrid& list = *new FlexGrid(this);
    TextBox& box = *new TextBox(this);
    ComboBox& combo = *new ComboBox(this);
    QString asked;
};

class GridEditing : public ScreenTest {
 protected:
    GridEditing() {
        gGrid = &sheet.list;
        gGridForm = &sheet;
        GridInit(u"List"_s);
        GridAddCol({u"ｺｰﾄﾞ"_s, u"####"_s, 1000, u"R"_s, false, u"T"_s, 2});
        GridAddCol({u"得意先"_s, u"S"_s, 2000, u"L"_s, true, u"T"_s, 4});
        GridAddCol({u"区分"_s, u"S"_s, 1500, u"C"_s, true, u"C"_s, 2});
        sheet.list.SetRows(3);
        GridApply();
        sheet.list.SetTextMatrix(1, 1, u"山田"_s);
        sheet.Show();
        clerk.settle();
    }
    ~GridEditing() override {
        gGrid = nullptr;
        gGridForm = nullptr;
    }
    void goTo(int row, int col) {
        sheet.list.SetRow(row);
        sheet.list.SetCol(col);
    }

    Sheet sheet;
};

TEST_F(GridEditing, LaysTheBoxOverTheCell) {
    QFont large = sheet.list.font();
    large.setPixelSize(20);
    sheet.list.setFont(large);
    goTo(1, 1);
    GridEdit();
    EXPECT_EQ(clerk.focused(), &sheet.box);
    EXPECT_EQ(sheet.box.Text(), u"山田"_s);
    EXPECT_EQ(sheet.box.selectedText(), u"山田"_s);
    EXPECT_EQ(sheet.box.IMEMode(), ImeMode::Hiragana);
    EXPECT_EQ(sheet.box.font().pixelSize(), 20);
    const QRect cell = sheet.list.CellRect();
    EXPECT_EQ(sheet.box.geometry(), cell.translated(sheet.list.pos()));
}

TEST_F(GridEditing, LaysTheComboOverOtherKindsWhateverFillingItRaises) {
    goTo(2, 2);
    GridEdit();
    EXPECT_EQ(sheet.asked, u"List"_s);
    EXPECT_EQ(clerk.focused(), &sheet.combo);
    EXPECT_EQ(sheet.combo.width(), sheet.list.CellRect().width());
}

TEST_F(GridEditing, StepsDownUntilTheLastRow) {
    goTo(1, 1);
    GridNextRow();
    EXPECT_EQ(sheet.list.Row(), 2);
    EXPECT_TRUE(sheet.box.isVisible());
    sheet.box.hide();
    GridNextRow();
    EXPECT_EQ(sheet.list.Row(), 2);
    EXPECT_TRUE(sheet.box.isHidden());
}

}  // namespace
}  // namespace akarix
