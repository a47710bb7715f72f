#include <gtest/gtest.h>

#include <QFile>
#include <QTextStream>

#include "RecordingSurface.h"
#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "output/RunReport.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DateSerial.h"
#include "values/Dates.h"

namespace akarix {
namespace {

struct ScriptCase {
    int line = 0;
    bool restart = false;
    QStringList script;
    QStringList expected;
};

std::vector<ScriptCase> ReadCases(const QString& path) {
    std::vector<ScriptCase> cases;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return cases;
    QTextStream in(&file);
    bool restart = true;
    bool inScript = false;
    for (int number = 1; !in.atEnd(); ++number) {
        const QString line = in.readLine();
        if (line.isEmpty()) restart = true;
        if (line.isEmpty() || line.startsWith("# ")) {
            inScript = false;
        } else if (line.startsWith("> ")) {
            if (!inScript) cases.push_back({number, std::exchange(restart, false), {}, {}});
            inScript = true;
            cases.back().script += line.mid(2);
        } else {
            inScript = false;
            cases.back().expected += line;
        }
    }
    return cases;
}

int Run(PrintReport& report, PrintSurface& surface) {
    try {
        RunReport(report, surface);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

QStringList Print(PrintReport& report, RecordingSurface& surface, const QStringList& script) {
    report.Init();
    for (const QString& line : script) {
        report.AddLine(line);
    }
    surface.calls.clear();
    const int error = Run(report, surface);
    QStringList calls = surface.calls;
    if (error != 0) calls.insert(calls.size() - 1, QString("error %1").arg(error));
    return calls;
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
    const auto cases = ReadCases(AKARIX_TEST_DATA "/scripts.pbtest");
    ASSERT_GT(cases.size(), 20U);
    std::optional<PrintReport> report;
    std::optional<RecordingSurface> surface;
    for (const ScriptCase& c : cases) {
        if (c.restart) {
            report.emplace();
            surface.emplace();
        }
        EXPECT_EQ(Print(*report, *surface, c.script).join('\n').toStdString(),
                  c.expected.join('\n').toStdString())
            << "scripts.pbtest:" << c.line;
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
    for (int i = 0; i < 3001; ++i) {
        report.AddLine("<CL>");
    }
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
    Print(report, surface, {"<FREE>0,100,x"});
    const QStringList drawn = {"line 1,2 3,4", "text 0,0 added", "end"};
    EXPECT_EQ(Print(report, surface, {"<BKGRD>x"}), drawn);
    EXPECT_EQ(Print(report, surface, {"<BKGRD>"}), drawn);
    EXPECT_EQ(report.Surface, nullptr);
}

}  // namespace
}  // namespace akarix
