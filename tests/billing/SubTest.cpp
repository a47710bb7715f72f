#include "billing/Sub.h"

#include "platform/runtime/Literals.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

class SubTest : public testing::Test {
 protected:
    ScratchStore store;
};

TEST_F(SubTest, GasCharge) {
    ScratchStore::run(
        u"INSERT INTO Deal(Code,TankaPtn) VALUES(1,1),(2,2);\n"
        "INSERT INTO Deal(Code) VALUES(3);\n"
        "INSERT INTO Deal(Code,TankaPtn) VALUES(4,4);\n"
        "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(1,6,20,1800,480.5),(1,0,5,1800,0),"
        "(2,6,20,3000,100),(2,0,6,1700.5,33.3333),(4,5,9,1000,-10.05);\n"_s);
    struct Case {
        std::int32_t deal;
        const char16_t* usage;
        const char16_t* charge;
    };
    const Case cases[] = {
        {1, u"12.3", u"4827"},                       // 1,800 + Int(6.3 x 480.5 = 3,027.15)
        {1, u"5", u"1800"},                          // both bounds belong to a band
        {1, u"6", u"1800"},    {1, u"20", u"8527"},  // 14 x 480.5 = 6,727
        {1, u"5.5", u"0"},                           // between two bands
        {1, u"20.1", u"0"},                          // above the last
        {1, u"-1234.5", u"0"},                       // a meter that was not read
        {2, u"6", u"1899.5"},  // the lower of two overlapping bands; 199.9998 loses its fraction
        {2, u"6.1", u"3010"},  {2, u"0.0001", u"1700.5"},  // the basic charge keeps its fraction
        {3, u"1", u"0"},                                   // no tariff
        {4, u"6", u"989"},                                 // -10.05 goes down to -11
        {99, u"1", u"0"},                                  // no customer
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CalcGasCharge(c.deal, Currency::FromText(QString::fromUtf16(c.usage))).ToText(),
                  QString::fromUtf16(c.charge))
            << c.deal << " uses " << QString::fromUtf16(c.usage).toStdString();
    }
}

TEST_F(SubTest, EarlierMeter) {
    ScratchStore::run(
        u"INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) VALUES(2010,12,1,900.5),(2010,3,1,700),"
        "(2011,2,2,0),(2011,1,2,55);\n"_s);
    EXPECT_EQ(PrevKonkaiMeter(1, {2011, 4}).ToText(), u"900.5"_s) << "months are passed over";
    EXPECT_EQ(PrevKonkaiMeter(1, {2010, 12}).ToText(), u"700"_s);
    EXPECT_EQ(PrevKonkaiMeter(1, {2010, 3}), Currency(0));
    EXPECT_EQ(PrevKonkaiMeter(2, {2011, 3}), Currency(0)) << "a month listed and not read is not";
}

}  // namespace
}  // namespace akarix
