#include "platform/dialect/Translator.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>

#include "platform/cipher/Writer.h"
#include "platform/dao/DBEngine.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

const char* const kPlans = AKARIX_TEST_DATA "/plans.txt";

const Catalogue& SmallCatalogue() {
    static const Catalogue catalogue = [] {
        Catalogue made;
        const std::vector<ColumnDef> columns{{"Code", FieldType::Long},
                                             {"Namae", FieldType::Text, 20},
                                             {"Gaku", FieldType::Currency},
                                             {"Hi", FieldType::Date}};
        for (const char* name : {"T", "U"})
            made.put({name, columns, {{"Code"}}});
        return made;
    }();
    return catalogue;
}

int ErrorOf(Translator& translator, const QString& sql, QString* said = nullptr) {
    try {
        translator.translate(sql);
        return 0;
    } catch (const RuntimeError& error) {
        if (said) *said = error.description();
        return error.number();
    }
}

TEST(PlanCache, SparesTheWorkWhereOnlyLiteralsDiffer) {
    for (const auto& [cells, line] : ReadTable(kPlans, "shared")) {
        Translator translator(SmallCatalogue());
        const auto first = translator.translate(cells[0]);
        const auto second = translator.translate(cells[1]);
        EXPECT_EQ(first.statement == second.statement, cells[2] == "true") << line;
    }
}

TEST(PlanCache, BindsTheLiteralsOfEachTextInTheFormOfTheirColumn) {
    Translator translator(SmallCatalogue());
    const QString shape = "INSERT INTO T(Code,Namae,Gaku,Hi) SELECT %1 , '%2' , -%3 , CDATE('%4')";
    const BoundText first = translator.translate(shape.arg(1).arg("x").arg(2).arg("2011/1/1"));
    const BoundText bound = translator.translate(shape.arg(7).arg("y").arg(30).arg("1900/1/1"));
    const std::vector<StoreValue> expected{std::int64_t{7}, "y", std::int64_t{-300000}, 2.0};
    EXPECT_EQ(bound.values, expected);
    EXPECT_EQ(bound.statement, first.statement);
    EXPECT_EQ(ErrorOf(translator, shape.arg(7).arg("y").arg(30).arg("1900/2/30")), 13);
}

TEST(PlanCache, ATextSeenBeforeInAnotherFormIsTranslatedAsIfItWereTheFirst) {
    for (const auto& [pair, line] : ReadTable(kPlans, "alike")) {
        Translator used(SmallCatalogue());
        used.translate(pair[0]);
        for (const QString& sql : {pair[1], pair[0], pair[1], pair[0]}) {
            const BoundText fresh = Translator(SmallCatalogue()).translate(sql);
            const BoundText again = used.translate(sql);
            EXPECT_EQ(Write(*again.statement).text, Write(*fresh.statement).text) << line;
            EXPECT_EQ(again.values, fresh.values) << line;
        }
    }
    Translator used(SmallCatalogue());
    used.translate("SELECT * FROM T WHERE Namae='a'");
    EXPECT_EQ(ErrorOf(used, "SELECT * FROM T WHERE Namae='a"), 3075);
}

TEST(PlanCache, ForgetsThePlansLongUnusedAndAllOfThemWithADefinition) {
    Catalogue catalogue = SmallCatalogue();
    Translator translator(catalogue);
    const QString hot = "SELECT * FROM T WHERE Code=1";
    const auto first = translator.translate(hot).statement;
    const auto cold = translator.translate("SELECT Gaku FROM T").statement;
    for (int i = 0; i < 300; ++i) {
        translator.translate(QString("SELECT Code AS c%1 FROM T").arg(i));
        if (i % 50 == 0) translator.translate(hot);
    }
    EXPECT_EQ(translator.translate(hot).statement, first);
    EXPECT_NE(translator.translate("SELECT Gaku FROM T").statement, cold);
    catalogue.replace(SmallCatalogue());
    EXPECT_NE(translator.translate(hot).statement, first);
}

TEST(Translator, SaysWhichQueriesCanBeChanged) {
    Translator translator(SmallCatalogue());
    for (const auto& [cells, line] : ReadTable(kPlans, "updatable"))
        EXPECT_EQ(translator.translate(cells[0]).statement->query()->updatable(), cells[1] == "true") << line;
}

TEST(Translator, NamesTheConstructAndItsPlace) {
    Translator translator(SmallCatalogue());
    for (const auto& [cells, line] : ReadTable(kPlans, "told")) {
        QString said;
        EXPECT_NE(ErrorOf(translator, cells[0], &said), 0) << line;
        EXPECT_TRUE(said.contains(cells[1])) << line << said.toStdString();
    }
}

Database& MakeStore(const QTemporaryDir& folder) {
    Database& database =
        *DBEngine::Workspaces(0).CreateDatabase(folder.filePath("Store.MDB"), "MS Access;PWD=dialect");
    for (const char* table : {"T", "U"})
        database.Execute(
            QString("CREATE TABLE %1(Code Long, Namae Text(20), Gaku Currency, Hi DateTime)").arg(table));
    return database;
}

// What is too deep must be refused here, and what is let through the engine must take.
TEST(Translator, KeepsTheDepthOfStatementsWithinWhatTheEngineTakes) {
    const QTemporaryDir folder;
    Database& database = MakeStore(folder);
    for (const auto& [shape, line] : ReadTable(kPlans, "deep")) {
        for (const int depth : {3, 20, 60, 190, 800, 20000}) {
            const QString nested = shape[0].repeated(depth) + shape[1] + shape.value(2).repeated(depth);
            try {
                database.OpenRecordset("SELECT Code FROM T WHERE " + nested).Eof();
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.number(), 3360) << depth << line << error.what();
            }
        }
    }
    database.Close();
}

// Statements with pieces lost, doubled and exchanged: an error of the dialect is right, a crash is not, and
// neither is a text that the engine does not understand.
TEST(Translator, StandsBrokenStatements) {
    const QTemporaryDir folder;
    Database& database = MakeStore(folder);
    const auto seeds = ReadTable(kPlans, "sound");
    std::mt19937 random(7164);
    const auto pick = [&](qsizetype below) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(below));
    };
    const Action action;
    int understood = 0;
    for (int round = 0; round < 4000; ++round) {
        QStringList words = seeds[random() % seeds.size()].cells[0].split(u' ');
        for (int change = round % 3; change < 3; ++change) {
            const qsizetype place = pick(words.size());
            const QStringList other = seeds[random() % seeds.size()].cells[0].split(u' ');
            const auto kind = random() % 4;
            if (kind == 0)
                words[place] = other[pick(other.size())];
            else if (kind == 1)
                words.insert(place, words[pick(words.size())]);
            else if (kind == 2)
                words[place].truncate(pick(words[place].size() + 1));
            else
                words[place].append("()[]'\"#.,*-;=é"[pick(14)]);
        }
        const QString sql = words.join(u' ');
        try {
            if (sql.startsWith(u"SELECT"))
                database.OpenRecordset(sql).Eof();
            else
                database.Execute(sql);
            ++understood;
        } catch (const RuntimeError& error) {
            const QString& text = error.description();
            EXPECT_FALSE(text.contains(u"near ") || text.contains(u"no such") || text.contains(u"misuse"))
                << sql.toStdString() << error.what();
        }
    }
    EXPECT_GT(understood, 80);
    database.Close();
}

}  // namespace
}  // namespace akarix
