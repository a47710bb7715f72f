#include <QTemporaryDir>

#include "RecordingSurface.h"
#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "output/RunReport.h"
#include "platform/jet/DBEngine.h"
#include "platform/jet/Database.h"
#include "platform/jet/Workspace.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

using testing::ElementsAre;

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
    int failWith = 5;
};

/// Rows of a small table on a recording surface. The page begins at 50,1000; a name is 500 wide, a number
/// 500, with 100 between them.
class PbDetailTest : public ScreenTest {
 protected:
    void SetUp() override {
        database_ = DBEngine::Workspaces(0).CreateDatabase(folder_.filePath("a.MDB"), "MS Access;PWD=x");
        database_->Execute(
            "CREATE TABLE Test (N Long PRIMARY KEY, Grp Integer, Namae Text(20), Gaku Currency)");
        report.Init();
        report.Owner = &owner;
        report.DetailMode = true;
        column("名", "Namae", "S", "5");
        column("額", "Gaku", "N", "#,##0").WithTotal = true;
        script({"<LOCATE>50,1000", "<DTPOS>", "<DTCNT>2", "<ZOUBUN>200"});
    }
    void TearDown() override {
        ScreenTest::TearDown();
        report.DetailSet.reset();
        database_->Close();
    }

    PrintColumn& column(const QString& title, const QString& source, const QString& kind,
                        const QString& mask) {
        PrintColumn& made = report.Column(report.ColCount.value());
        report.ColCount += 1;
        made.Title = title;
        made.Source = source;
        made.Kind = kind;
        made.Mask = mask;
        made.Gap = 100;
        return made;
    }
    void script(const QStringList& lines) {
        report.ScriptLines.clear();
        for (const QString& line : lines) {
            report.AddLine(line);
        }
    }
    /// "Grp, Namae, Gaku" of each row, as SQL literals.
    void rows(const QStringList& values) {
        database_->Execute("DELETE FROM Test");
        for (int n = 0; n < values.size(); ++n) {
            database_->Execute(QString("INSERT INTO Test VALUES (%1,%2)").arg(n).arg(values[n]));
        }
        report.DetailSet.emplace(database_->OpenRecordset("SELECT * FROM Test ORDER BY N"));
    }
    int run() {
        try {
            RunReport(report, surface);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
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

    PrintReport report;
    RecordingSurface surface;
    Owner owner;

 private:
    QTemporaryDir folder_;
    Database* database_ = nullptr;
};

TEST_F(PbDetailTest, APageOfRowsWithHeadingAndTotals) {
    report.pen.AreaWidth = 9000;
    rows({"1,' Sato ',1500", "1,NULL,NULL"});
    EXPECT_EQ(run(), 0);
    surface.calls.removeIf([](const QString& call) {
        return call.startsWith("font ") || call.startsWith("size ") || call.startsWith("charset ");
    });
    EXPECT_EQ(surface.calls, QStringList({
                                 "text 50,1000 名",  // number headings end where the numbers do
                                 "text 950,1000 額",
                                 "line 0,1200 9000,1200",
                                 "text 50,1300 Sato",
                                 "text 650,1300 1,500",
                                 "text 50,1500 ",
                                 "text 650,1500     0",
                                 "line 0,1700 9000,1700",
                                 "text 50,1800 頁計：",
                                 "text 650,1800 1,500",
                                 "text 50,2000 累計：",
                                 "text 650,2000 1,500",
                                 "line 0,2200 9000,2200",
                                 "end",
                             }));
    EXPECT_TRUE(report.DetailEnded);
}

TEST_F(PbDetailTest, PagesAndTheirTotals) {
    const QString head = "名|額|";
    struct Case {
        int records;
        QString rowsPerPage;
        QStringList pages;
    };
    const Case cases[] = {
        {0, "2", {"名|額|頁計：|    0|累計：|    0|"}},
        {2, "2", {"名|額|r1|    1|r2|    2|頁計：|    3|累計：|    3|"}},
        {3,
         "2",
         {"名|額|r1|    1|r2|    2|頁計：|    3|累計：|    3|", "名|額|r3|    3|頁計：|    3|累計：|    6|"}},
        {2, "0", {"名|額|r1|    1|頁計：|    1|累計：|    1|", "名|額|r2|    2|頁計：|    2|累計：|    3|"}},
    };
    for (const Case& c : cases) {
        script({"<LOCATE>50,1000", "<DTPOS>", "<DTCNT>" + c.rowsPerPage});
        QStringList values;
        for (int n = 1; n <= c.records; ++n) {
            values += QString("1,'r%1',%1").arg(n);
        }
        rows(values);
        report.PageNo = 1;
        report.RunTotal.fill({});
        surface.calls.clear();
        EXPECT_EQ(run(), 0);
        EXPECT_EQ(pages(), c.pages) << c.records;
        EXPECT_EQ(report.PageNo, Int16(static_cast<int>(c.pages.size()) + 1)) << c.records;
        EXPECT_EQ(report.DetailEnded, c.records > 0);
        report.DetailEnded = false;
    }
}

TEST_F(PbDetailTest, TheScriptIsPlayedForEachPage) {
    script({"<PAGE>", "<FREETOP>0,500,once", "<DTCNT>1"});
    rows({"1,'a',1", "1,'b',2"});
    report.NoPageTotals = report.NoTopRule = true;
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(pages(), QStringList({"ページ 1|once|名|額|a|    1|", "ページ 2|名|額|b|    2|"}));
    EXPECT_THAT(surface.only("line"), testing::IsEmpty());
    EXPECT_EQ(owner.noTotals, 2);
}

TEST_F(PbDetailTest, GroupsPrintSubtotalsAndTakeTwoRowsOfThePage) {
    script({"<LOCATE>0,0", "<DTPOS>", "<DTCNT>5"});
    report.GroupField = "Grp";
    rows({"NULL,'a',1", "0,'b',2", "7,'c',4", "7,'d',8"});
    report.SpareTotal[3] = 1;
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(pages(), QStringList({"名|額|a|    1|b|    2|小計：|    3|c|    4|頁計：|    4|累計：|    7|",
                                    "名|額|d|    8|頁計：|    8|累計：|   15|小計：|    0|総計：|   15|"}));
    EXPECT_TRUE(surface.calls.contains("text 0,800 小計："));  // the next row two lines on
    EXPECT_TRUE(surface.calls.contains("text 0,1200 c"));
    EXPECT_EQ(report.SpareTotal[3], Currency());
}

TEST_F(PbDetailTest, WhatACellShows) {
    struct Case {
        const char* what;
        const char* source;
        const char* kind;
        const char* mask;
        const char* text;
        int total;
    };
    const Case cases[] = {
        {"the owner's text as it stands", "@12", "S", "9", "12 owner", 0},
        {"a number out of the owner's text", "@12", "N", "0000", "0012", 12},
        {"what the mask cut off is not summed", "@12345", "N", "000", "345", 345},
        {"the text of the cell before", "Gaku", "D", "#,##0", "1,500", 0},
        {"also for a field that is not there", "Nowhere", "S", "5", "1,500", 0},
        {"nor is a missing number summed", "Nowhere", "N", "0.0", "1,500", 0},
    };
    for (const Case& c : cases) {
        report.ColCount = 2;
        column("x", c.source, c.kind, c.mask).WithTotal = true;
        report.PageTotal.fill({});
        report.RunTotal.fill({});
        rows({"1,'a',1500"});
        surface.calls.clear();
        report.NoPageTotals = true;
        EXPECT_EQ(run(), 0) << c.what;
        EXPECT_EQ(pages().value(0).section('|', 5, 5), c.text) << c.what;
        EXPECT_EQ(report.RunTotal[2], Currency(c.total)) << c.what;
    }
}

TEST_F(PbDetailTest, FontsAndFixedPlacesOfCells) {
    script({"<DTCNT>2", "<ZOUBUN>200", "<LOCATE>0,1000", "<DTPOS>"});
    report.Column(0).FontName = "CODE39";
    report.Column(0).FontSize = 20;
    report.Column(1).FontName.clear();
    report.Column(1).FontSize = 0;
    report.Column(1).FixedX = 3000;
    report.Column(1).FixedY = 50;
    column("後", "Namae", "S", "5");
    rows({"1,'a',1", "1,'b',2"});
    EXPECT_EQ(run(), 0);
    const QString all = surface.calls.join('\n');
    // The heading is printed in the font that measuring has left.
    EXPECT_TRUE(all.contains("font CODE39\nsize 20\nfont ＭＳ ゴシック\nsize 10\ntext 0,1000 名"));
    EXPECT_TRUE(
        all.contains("charset 0\nfont CODE39\nsize 20\ntext 0,1300 a\ntext 3000,1050     1\n"
                     "charset 128\nfont ＭＳ ゴシック\nsize 10\ntext 2200,1300 a"));
    EXPECT_TRUE(all.contains("text 3000,1450     2"));
}

TEST_F(PbDetailTest, AFailureIsToldAndTheRowTriedOnTheNextPage) {
    column("x", "@1", "S", "9");
    rows({"1,'a',1", "1,'b',2"});
    owner.failures = 1;
    clerk.answerAlert();
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(clerk.said(), QStringList("エラー5"));
    EXPECT_EQ(pages(), QStringList({"名|額|x|a|    1|",
                                    "名|額|x|a|    1|1 owner|b|    2|1 owner|頁計：|    4|累計：|    4|"}));
}

TEST_F(PbDetailTest, ARowThatFailsOnTwoPagesEndsTheReport) {
    struct Case {
        const char* source;
        const char* kind;
        bool owned;
        int error;
    };
    const Case cases[] = {
        {"@x", "S", true, 13},
        {"@40000", "S", true, 6},
        {"@1", "S", false, 91},
        {"Namae", "N", true, 13},
    };
    for (const Case& c : cases) {
        report.ColCount = 0;
        column("x", c.source, c.kind, "9");
        report.Owner = c.owned ? &owner : nullptr;
        rows({"1,'a',1"});
        surface.calls.clear();
        clerk.answerAlert();
        EXPECT_EQ(run(), c.error) << c.source;
        EXPECT_EQ(clerk.lastSaid(), QString("エラー%1").arg(c.error));
        EXPECT_EQ(surface.calls.count("end"), 1) << c.source;
        EXPECT_EQ(surface.calls.last(), "cls") << c.source;
    }
    report.DetailSet.reset();
    clerk.answerAlert();
    EXPECT_EQ(run(), 91);
}

TEST_F(PbDetailTest, AMissingFieldInTheOwnersHandIsPassedOver) {
    column("x", "@1", "S", "9");
    rows({"1,'a',1"});
    owner.failures = -1;
    owner.failWith = 3265;
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(pages(), ElementsAre("名|額|x|a|    1|    1|頁計：|    1|累計：|    1|"));
}

TEST_F(PbDetailTest, MoreColumnsThanThereAreAreAnError) {
    report.ColCount = 101;
    rows({});
    EXPECT_EQ(run(), 9);
}

TEST_F(PbDetailTest, ATotalMovesTheNextOneByItsOwnWidth) {
    column("後", "Gaku", "N", "#,##0").WithTotal = true;
    rows({"1,'a',1500"});
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(surface.calls.contains("text 1250,1300 1,500"));
    EXPECT_TRUE(surface.calls.contains("text 650,1600 1,500"));
    EXPECT_TRUE(surface.calls.contains("text 1750,1600 1,500"));
}

TEST_F(PbDetailTest, OnlyTwentyColumnsAreTotalled) {
    report.ColCount = 0;
    for (int i = 0; i < 21; ++i) {
        column(QString(), "Gaku", "N", "0").WithTotal = true;
    }
    rows({"1,'a',3"});
    EXPECT_EQ(run(), 0);
    const QString page = pages().value(0);
    EXPECT_EQ(page.section("頁計：", 1, 1).section("累計：", 0, 0).count('3'), 20);
}

}  // namespace
}  // namespace akarix
