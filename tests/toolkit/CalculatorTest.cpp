#include <QScreen>

#include "platform/forms/ComboBox.h"
#include "platform/forms/MemoBox.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"
#include "support/ScreenTest.h"
#include "toolkit/Dentaku_frm.h"
#include "toolkit/Evaluate.h"

namespace akarix {
namespace {

TEST(Evaluate, GivesTheLastLineOrNothing) {
    const struct {
        const char* memo;
        int scaled;
    } cases[] = {
        {"2/3", 6667},
        {"-(1.5-4)", 25000},
        {"2*-3", -60000},
        {"１+1", 0},
        {"", 0},
        {"1/0", 0},
        {"1,200*2", 0},
        {"10^30", 0},
        {"999999999999999*10", 0},
        {"1+1\r\n2+2\r\n", 0},
        {"  1+1\r\n  3*3  ", 90000},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Evaluate(QString::fromUtf8(c.memo)), Currency::FromScaled(c.scaled)) << c.memo;
}

class Calculator : public ScreenTest {
 protected:
    Calculator() { OpenScreen<Dentaku_frm>(); }
    QString answerTo(const QString& expression) {
        clerk.find<MemoBox>(u"eSiki"_s).SetText(expression);
        clerk.click(u"eSiki"_s);
        clerk.enter();
        return clerk.text(u"eAns"_s);
    }
    void choose(int row) { clerk.find<ComboBox>(u"Combo1"_s).SetListIndex(row); }
};

TEST_F(Calculator, AnswersOnEnter) {
    clerk.fill(u"1000*1.05"_s);
    EXPECT_EQ(clerk.text(u"eAns"_s), u"1,050.0"_s);
    EXPECT_EQ(clerk.text(u"eSiki"_s), u"1000*1.05"_s) << "Enter begins no line";
    EXPECT_EQ(answerTo(u"2+"_s), u"0.0"_s);
    EXPECT_EQ(answerTo(u"1500"_s), u"0.0"_s) << "a bare number is not echoed";
    EXPECT_EQ(answerTo(u"-1500"_s), u"-1,500.0"_s);
}

TEST_F(Calculator, StandsInTheCornerUntilItIsMoved) {
    QWidget& window = *clerk.find<MemoBox>(u"eSiki"_s).window();
    EXPECT_EQ(window.pos(), window.screen()->availableGeometry().topLeft());
    window.move(200, 100);
    OpenScreen<Dentaku_frm>();
    EXPECT_EQ(window.pos(), QPoint(200, 100)) << "where the clerk has put it";
}

TEST_F(Calculator, DecimalsAreTakenFromTheShownText) {
    choose(2);
    EXPECT_EQ(answerTo(u"1/3"_s), u"0.33"_s);
    choose(3);
    EXPECT_EQ(clerk.text(u"eAns"_s), u"0.330"_s);
    EXPECT_EQ(answerTo(u"1234567.891*1"_s), u"1,234,567.891"_s);
    choose(0);
    choose(3);
    EXPECT_EQ(clerk.text(u"eAns"_s), u"1,234,568.000"_s);
    const QString noAmount(20, u'9');
    clerk.find<TextBox>(u"eAns"_s).SetText(noAmount);
    choose(1);
    EXPECT_EQ(clerk.text(u"eAns"_s), noAmount) << "and nothing is reported";
}

TEST_F(Calculator, ClearsButKeepsTheDecimals) {
    choose(2);
    answerTo(u"1+1"_s);
    clerk.click(u"Command1"_s);
    EXPECT_EQ(clerk.text(u"eSiki"_s), QString());
    EXPECT_EQ(clerk.text(u"eAns"_s), QString());
    EXPECT_EQ(clerk.text(u"Combo1"_s), u"2"_s);
    choose(1);
    EXPECT_EQ(clerk.text(u"eAns"_s), QString()) << "no answer is made up";
}

}  // namespace
}  // namespace akarix
