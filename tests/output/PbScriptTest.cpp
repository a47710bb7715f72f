#include <gtest/gtest.h>

#include "RecordingSurface.h"
#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "output/RunReport.h"
#include "platform/runtime/Calendar.h"
#include "support/CaseFile.h"
#include "support/Raised.h"
#include "values/Dates.h"

namespace akarix {
namespace {

QStringList Print(PrintReport& report, RecordingSurface& surface, const QStringList& script) {
    report.Init();
    for (const QString& line : script)
        report.AddLine(line);
    surface.calls.clear();
    if (const int error = Raised([&] { RunReport(report, surface); }))
        surface.calls.insert(surface.calls.size() - 1, QString("error %1").arg(error));
    return surface.calls;
}

class PbScriptTest : public testing::Test {
 protected:
    void SetUp() override { SetClock(DateSerial(2011, 3, 5)); }
    void TearDown() override {
        SetClock(Date());
        gDateMode = 0;
    }
};

TEST_F(PbScriptTest, Scripts) {
    std::optional<PrintReport> report;
    std::optional<RecordingSurface> surface;
    for (const auto& [place, fresh, given, expected] : ReadScripts(AKARIX_TEST_DATA "/scripts.pbtest")) {
        if (fresh) {
            report.emplace();
            surface.emplace();
        }
        QStringList calls = Print(*report, *surface, given);
        const bool failed = expected.value(expected.size() - 1).startsWith("error ");
        EXPECT_EQ(calls.takeLast(), failed ? "cls" : "end") << place;
        EXPECT_EQ(calls.join('\n').toStdString(), expected.join('\n').toStdString()) << place;
    }
}

TEST_F(PbScriptTest, ATextIsMeasuredFinerThanItIsPlaced) {
    PrintReport report;
    RecordingSurface surface;
    surface.excess = 0.5;
    EXPECT_EQ(Print(report, surface, {"<SETWIDTH>1000", "a", "b", "<RIGHT>", "c", "<CENTER>", "d"}),
              QStringList({"text 0,0 a", "text 100,0 b", "text 900,0 c", "text 450,0 d", "end"}));
}

TEST_F(PbScriptTest, TheYearGoesByTheDateMode) {
    gDateMode = 1;
    PrintReport report;
    RecordingSurface surface;
    EXPECT_EQ(Print(report, surface, {"<DATE>2"}).value(0), "text 0,0 23.3.5");
}

TEST_F(PbScriptTest, AScriptHolds3001Lines) {
    PrintReport report;
    report.Init();
    for (int i = 0; i < 3001; ++i)
        report.AddLine("<CL>");
    EXPECT_THROW(report.AddLine("<CL>"), RuntimeError);
    EXPECT_EQ(report.ScriptLines.size(), 3001U);
    report.Init();
    report.AddLine("<CL>");
}

TEST_F(PbScriptTest, AnOwnerDrawsTheBackgroundAndStaysWithTheNextReport) {
    PrintReport report;
    class Owner : public ReportOwner {
     public:
        explicit Owner(PrintReport& report) : report_(report) {}
        void BKGRD() override {
            report_.Surface->Line(1, 2, 3, 4);
            report_.AddLine("added");
        }
        void NoTotalAction() override {}
        QString alpha(Int16) override { return {}; }

     private:
        PrintReport& report_;
    } owner(report);
    RecordingSurface surface;
    report.Owner = &owner;
    const QStringList drawn = {"line 1,2 3,4", "text 0,0 added", "end"};
    EXPECT_EQ(Print(report, surface, {"<BKGRD>x"}), drawn);
    EXPECT_EQ(report.Surface, nullptr);
}

}  // namespace
}  // namespace akarix
