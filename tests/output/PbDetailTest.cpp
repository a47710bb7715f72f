#include <QRegularExpression>
#include <QTemporaryDir>

#include "RecordingSurface.h"
#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "output/RunReport.h"
#include "platform/dao/DBEngine.h"
#include "platform/dao/Database.h"
#include "platform/dao/Workspace.h"
#include "support/CaseFile.h"
#include "support/Raised.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

class Owner : public ReportOwner {
 public:
    void BKGRD() override {}
    void NoTotalAction() override { ++noTotals; }
    QString alpha(Int16 n) override {
        if (failures != 0) {
            --failures;
            throw RuntimeError(failWith);
        }
        return QString("%1 owner").arg(n.value());
    }

    int noTotals = 0;
    int failures = 0;  ///< below 0: for ever
    int failWith = 0;
};

/// Rows of a small table on a recording surface.
class PbDetailTest : public ScreenTest {
 protected:
    void SetUp() override {
        database_ = DBEngine::Workspaces(0).CreateDatabase(folder_.filePath("a.MDB"), "MS Access;PWD=x");
        database_->Execute("CREATE TABLE Test (N Long, Grp Integer, Namae Text(20), Gaku Currency)");
        begin();
    }
    void TearDown() override {
        ScreenTest::TearDown();
        report.reset();
        database_->Close();
    }

    /// A report of two columns, the second with totals.
    void begin() {
        report.emplace();
        surface = {};
        owner = {};
        report->Init();
        report->Owner = &owner;
        report->DetailMode = true;
        report->SpareTotal[3] = 1;
        database_->Execute("DELETE FROM Test");
        column({"名", "Namae", "S", "5"});
        column({"額", "Gaku", "N", "#,##0", "total"});
    }
    /// \param words title, source, kind, mask, "total"; "_" for none
    PrintColumn& column(const QStringList& words) {
        PrintColumn& made = report->Column(report->ColCount.value());
        report->ColCount += 1;
        made.Title = words[0] == "_" ? QString() : words[0];
        made.Source = words[1];
        made.Kind = words[2];
        made.Mask = words[3];
        made.WithTotal = words.size() > 4;
        made.Gap = 100;
        return made;
    }
    void follow(const QString& line) {
        const QString word = line.section(' ', 0, 0);
        const QString rest = line.section(' ', 1);
        if (word.startsWith('<')) {
            report->AddLine(line);
        } else if (word == "row") {
            database_->Execute(QString("INSERT INTO Test VALUES (%1,%2)").arg(++rows_).arg(rest));
        } else if (word == "columns") {
            report->ColCount = Int16(rest.toInt());
        } else if (word == "column") {
            column(rest.split(' '));
        } else if (word == "fails") {
            owner.failures = rest.section(' ', 0, 0).toInt();
            owner.failWith = rest.section(' ', 1).toInt();
        } else if (word == "plain") {
            report->NoPageTotals = report->NoTopRule = true;
        } else if (word == "group") {
            report->GroupField = rest;
        } else if (word == "unowned") {
            report->Owner = nullptr;
        }
    }
    int run() {
        report->DetailSet.emplace(database_->OpenRecordset("SELECT * FROM Test ORDER BY N"));
        return Raised([this] { RunReport(*report, surface); });
    }
    /// The texts of each page without their places.
    QStringList pages() const {
        QStringList found{QString()};
        for (const QString& call : surface.calls) {
            if (call.startsWith("text ")) found.last() += call.section(' ', 2) + '|';
            if (call == "end") found += QString();
        }
        found.removeLast();
        return found;
    }

    std::optional<PrintReport> report;
    RecordingSurface surface;
    Owner owner;

 private:
    QTemporaryDir folder_;
    Database* database_ = nullptr;
    int rows_ = 0;
};

TEST_F(PbDetailTest, Reports) {
    for (const auto& [place, fresh, given, expected] : ReadScripts(AKARIX_TEST_DATA "/details.pbtest")) {
        SCOPED_TRACE(place);
        begin();
        for (const QString& line : given)
            follow(line);
        if (report->ScriptLines.empty())
            for (const char* line : {"<LOCATE>50,1000", "<DTPOS>", "<DTCNT>2", "<ZOUBUN>200"})
                report->AddLine(line);
        if (owner.failures > 0 || expected.value(expected.size() - 1).startsWith("error"))
            clerk.answerAlert();
        const int error = run();
        static const QRegularExpression drawing("^(text|line) ");
        QStringList found = given.contains("places") ? surface.calls.filter(drawing) : pages();
        if (owner.noTotals > 0) found += QString("left without totals %1").arg(owner.noTotals);
        const QString said = clerk.lastSaid();
        if (!said.isEmpty()) found += "said " + said;
        if (error != 0) found += QString("error %1 ").arg(error) + surface.calls.last();
        EXPECT_EQ(found.join('\n').toStdString(), expected.join('\n').toStdString());
        if (said.isEmpty()) {
            EXPECT_EQ(report->PageNo, Int16(static_cast<int>(surface.calls.count("end")) + 1));
            EXPECT_EQ(report->DetailEnded, given.filter("row ").size() > 0);
        }
        EXPECT_EQ(report->SpareTotal[3], Currency(given.contains("group Grp") ? 0 : 1));
    }
}

TEST_F(PbDetailTest, FontsAndFixedPlacesOfCells) {
    for (const char* line : {"<DTCNT>2", "<ZOUBUN>200", "<LOCATE>0,1000", "<DTPOS>", "row 1,'a',1",
                             "row 1,'b',2", "column 後 Namae S 5"})
        follow(line);
    report->Column(0).FontName = "CODE39";
    report->Column(0).FontSize = 20;
    report->Column(1).FontName.clear();
    report->Column(1).FontSize = 0;
    report->Column(1).FixedX = 3000;
    report->Column(1).FixedY = 50;
    EXPECT_EQ(run(), 0);
    const QString all = surface.calls.join('\n');
    // The heading is printed in the font that measuring has left.
    EXPECT_TRUE(all.contains("font CODE39\nsize 20\nfont ＭＳ ゴシック\nsize 10\ntext 0,1000 名"));
    EXPECT_TRUE(
        all.contains("charset 0\nfont CODE39\nsize 20\ntext 0,1300 a\ntext 3000,1050     1\n"
                     "charset 128\nfont ＭＳ ゴシック\nsize 10\ntext 2200,1300 a"));
    EXPECT_TRUE(all.contains("text 3000,1450     2"));
}

TEST_F(PbDetailTest, HowManyColumnsThereCanBe) {
    report->ColCount = 101;
    EXPECT_EQ(run(), 9);

    begin();
    report->ColCount = 0;
    for (int i = 0; i < 21; ++i)
        column({"_", "Gaku", "N", "0", "total"});
    follow("row 1,'a',3");
    EXPECT_EQ(run(), 0);
    const QString totals = pages().value(0).section("頁計：", 1, 1).section("累計：", 0, 0);
    EXPECT_EQ(totals.count('3'), 20) << "only twenty are totalled";
}

}  // namespace
}  // namespace akarix
