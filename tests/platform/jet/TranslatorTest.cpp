#include "platform/jet/Translator.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>

#include "platform/jet/Action.h"
#include "platform/jet/DBEngine.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

const Catalogue& smallCatalogue() {
    static const Catalogue catalogue = [] {
        Catalogue made;
        TableDef table{QStringLiteral("T"),
                       {{QStringLiteral("Code"), FieldType::Long},
                        {QStringLiteral("Namae"), FieldType::Text, 20},
                        {QStringLiteral("Gaku"), FieldType::Currency},
                        {QStringLiteral("Hi"), FieldType::Date}},
                       {{QStringLiteral("Code")}}};
        made.put(table);
        table.name = QStringLiteral("U");
        made.put(table);
        return made;
    }();
    return catalogue;
}

int errorOf(Translator& translator, const QString& sql) {
    try {
        translator.translate(sql);
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

TEST(PlanCache, SparesTheWorkWhereOnlyLiteralsDiffer) {
    struct Case {
        const char* first;
        const char* second;
        bool shared;
    };
    const Case cases[] = {
        {"SELECT * FROM T WHERE Code=1", "SELECT *  FROM T\n WHERE Code = 22", true},
        {"SELECT * FROM T WHERE Code=1", "SELECT * FROM T WHERE Code=1.5", false},
        {"SELECT * FROM T WHERE Gaku=1", "SELECT * FROM T WHERE Gaku=-1", false},
        {"UPDATE T SET Gaku=1.5 WHERE Code=1", "UPDATE T SET Gaku=200.25 WHERE Code=9", true},
        {"INSERT INTO T(Code,Namae) SELECT 1 , 'a'", "INSERT INTO T(Code,Namae) SELECT 2 , 'b''c'", true},
        {"INSERT INTO T(Code,Namae) SELECT Code,'a' FROM U",
         "INSERT INTO T(Code,Namae) SELECT Code,'b' FROM U", false},
        {"SELECT TOP 1 Code FROM T", "SELECT TOP 2 Code FROM T", false},
        {"SELECT Code FROM T ORDER BY 1", "SELECT Code,Gaku FROM T ORDER BY 2", false},
        {"SELECT Code+1 FROM T", "SELECT Code+2 FROM T", false},
        {"SELECT Code FROM T WHERE Code IN (SELECT 1 FROM U)",
         "SELECT Code FROM T WHERE Code IN (SELECT 2 FROM U)", false},
        {"SELECT [Code] FROM T", "SELECT 'Code' FROM T", false},
        {"SELECT Code FROM T WHERE Hi=#1/2/2003#", "SELECT Code FROM T WHERE Hi=#2004-05-06#", true},
    };
    for (const Case& one : cases) {
        Translator translator(smallCatalogue());
        const auto first = translator.translate(QString::fromUtf8(one.first));
        const auto second = translator.translate(QString::fromUtf8(one.second));
        EXPECT_EQ(first.plan == second.plan, one.shared) << one.second;
        EXPECT_EQ(translator.fromCache(), one.shared ? 1 : 0) << one.second;
    }
}

TEST(PlanCache, BindsTheLiteralsOfEachTextInTheFormOfTheirColumn) {
    Translator translator(smallCatalogue());
    const QString shape =
        QStringLiteral("INSERT INTO T(Code,Namae,Gaku,Hi) SELECT %1 , '%2' , -%3 , CDATE('%4')");
    translator.translate(shape.arg(1).arg(QStringLiteral("x")).arg(2).arg(QStringLiteral("2011/1/1")));
    const BoundStatement bound =
        translator.translate(shape.arg(7).arg(QStringLiteral("y")).arg(30).arg(QStringLiteral("1900/1/1")));
    const std::vector<StoreValue> expected{std::int64_t{7}, QStringLiteral("y"), std::int64_t{-300000}, 2.0};
    EXPECT_EQ(bound.arguments, expected);
    EXPECT_EQ(translator.fromCache(), 1);
    EXPECT_EQ(
        errorOf(translator, shape.arg(7).arg(QStringLiteral("y")).arg(30).arg(QStringLiteral("1900/2/30"))),
        13);
}

TEST(PlanCache, ATextSeenBeforeInAnotherFormIsTranslatedAsIfItWereTheFirst) {
    const char* const pairs[][2] = {
        {"SELECT Code+1 FROM T WHERE Code=5", "SELECT Code+2 FROM T WHERE Code=6"},
        {"SELECT TOP 1 Code FROM T WHERE Code>3", "SELECT TOP 7 Code FROM T WHERE Code>4"},
        {"SELECT 'a' , Code FROM T WHERE Namae='x'", "SELECT 'A' , Code FROM T WHERE Namae='y'"},
        {"SELECT Code AS c1 FROM T WHERE Code=1", "SELECT Code AS c2 FROM T WHERE Code=1"},
        {"SELECT Code AS [1] FROM T WHERE Code=1", "SELECT Code AS [2] FROM T WHERE Code=1"},
        {"SELECT Code AS [a'b] FROM T WHERE Namae='1'", "SELECT Code AS [a'c] FROM T WHERE Namae='2'"},
        {"SELECT * FROM T WHERE Namae='it''s'", "SELECT * FROM T WHERE Namae=\"it's '\""},
        {"SELECT * FROM T WHERE Namae='1'", "SELECT * FROM T WHERE Namae=''"},
        {"SELECT * FROM T WHERE Gaku=1", "SELECT * FROM T WHERE Gaku=12345678901234567890"},
        {"SELECT * FROM T WHERE Gaku=1.5", "SELECT * FROM T WHERE Gaku=.25"},
        {"SELECT * FROM T WHERE Gaku=1.5", "SELECT * FROM T WHERE Gaku=1.5E+3"},
        {"SELECT * FROM T WHERE Gaku=-1 AND Code=2", "SELECT * FROM T WHERE Gaku=-7 AND Code=-8"},
        {"SELECT * FROM T WHERE Hi=#1/2/2003#", "SELECT * FROM T WHERE Hi=#2004-05-06#"},
        {"UPDATE T SET Gaku=1 WHERE Code=1", "UPDATE T SET Gaku=1.5 WHERE Code=1"},
    };
    for (const auto& [first, second] : pairs) {
        Translator used(smallCatalogue());
        used.translate(QString::fromUtf8(first));
        for (int times = 0; times < 2; ++times) {
            for (const char* text : {second, first}) {
                const QString sql = QString::fromUtf8(text);
                const BoundStatement fresh = Translator(smallCatalogue()).translate(sql);
                const BoundStatement again = used.translate(sql);
                EXPECT_EQ(again.plan->text, fresh.plan->text) << text;
                EXPECT_EQ(again.arguments, fresh.arguments) << text;
            }
        }
    }
    Translator used(smallCatalogue());
    used.translate(QStringLiteral("SELECT * FROM T WHERE Namae='a'"));
    EXPECT_EQ(errorOf(used, QStringLiteral("SELECT * FROM T WHERE Namae='a")), 3075);
}

TEST(PlanCache, ForgetsThePlansLongUnusedAndAllOfThemWhenCleared) {
    Translator translator(smallCatalogue());
    const QString hot = QStringLiteral("SELECT * FROM T WHERE Code=1");
    const auto first = translator.translate(hot).plan;
    const auto cold = translator.translate(QStringLiteral("SELECT Gaku FROM T")).plan;
    for (int i = 0; i < 300; ++i) {
        translator.translate(QStringLiteral("SELECT Code AS c%1 FROM T").arg(i));
        if (i % 50 == 0) translator.translate(hot);
    }
    EXPECT_EQ(translator.translate(hot).plan, first);
    EXPECT_NE(translator.translate(QStringLiteral("SELECT Gaku FROM T")).plan, cold);
    translator.clear();
    EXPECT_NE(translator.translate(hot).plan, first);
}

TEST(Translator, SaysWhichQueriesCanBeChanged) {
    struct Case {
        const char* sql;
        bool updatable;
    };
    const Case cases[] = {
        {"SELECT Namae FROM T WHERE Code>1 ORDER BY Namae", true},
        {"SELECT T.* FROM T", true},
        {"SELECT TOP 1 * FROM T ORDER BY Gaku", true},
        {"SELECT DISTINCT Code FROM T", false},
        {"SELECT MAX(Code) FROM T", false},
        {"SELECT Code FROM T GROUP BY Code", false},
        {"SELECT T.Code FROM T, U", false},
        {"SELECT 1 AS One", false},
        {"SELECT Code FROM T UNION ALL SELECT Code FROM U", false},
        {"SELECT c FROM (SELECT Code AS c FROM T) AS d", false},
    };
    Translator translator(smallCatalogue());
    for (const Case& one : cases) {
        EXPECT_EQ(!translator.translate(QString::fromUtf8(one.sql)).plan->updatableTable.isEmpty(),
                  one.updatable)
            << one.sql;
    }
}

TEST(Translator, NamesTheConstructAndItsPlace) {
    struct Case {
        const char* sql;
        const char* text;
    };
    const Case cases[] = {
        {"SELECT Code FROM T WHERE Code=1 2", "演算子がありません。 (33 文字目)"},
        {"SELECT Kana FROM T", "'Kana' (8 文字目)"},
        {"SELECT Foo(Code) FROM T", "'Foo' があります。(8 文字目)"},
        {"SELECT Code FROM T WHERE Namae='O'Neill'", "文字列が閉じていません。 (40 文字目)"},
    };
    Translator translator(smallCatalogue());
    for (const Case& one : cases) {
        try {
            translator.translate(QString::fromUtf8(one.sql));
            ADD_FAILURE() << one.sql;
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.description().contains(QString::fromUtf8(one.text))) << error.what();
        }
    }
}

// What is too deep must be refused here, and what is let through the engine must take.
TEST(Translator, KeepsTheDepthOfStatementsWithinWhatTheEngineTakes) {
    const auto nested = [](const QString& open, const QString& middle, const QString& close, int depth) {
        return QStringLiteral("SELECT Code FROM T WHERE ") + open.repeated(depth) + middle +
               close.repeated(depth);
    };
    const QTemporaryDir folder;
    Database& database = *DBEngine::Workspaces(0).CreateDatabase(folder.filePath(QStringLiteral("Deep.MDB")),
                                                                 QStringLiteral("MS Access;PWD=deep"));
    database.Execute(QStringLiteral("CREATE TABLE T(Code Long)"));
    const struct {
        QString open, middle, close;
    } shapes[] = {
        {QStringLiteral("("), QStringLiteral("Code=1"), QStringLiteral(")")},
        {QStringLiteral("NOT "), QStringLiteral("Code=1"), QString()},
        {QStringLiteral("- "), QStringLiteral("Code=1"), QString()},
        {QStringLiteral("Code=1 OR (Code=2 AND ("), QStringLiteral("Code=1"), QStringLiteral("))")},
        {QStringLiteral("1-(2*("), QStringLiteral("Code"), QStringLiteral("))")},
        {QStringLiteral("ABS("), QStringLiteral("Code"), QStringLiteral(")")},
        {QStringLiteral("IIF(Code=1,2,"), QStringLiteral("Code"), QStringLiteral(")")},
        {QStringLiteral("Code IN (SELECT Code FROM T WHERE "), QStringLiteral("Code=1"), QStringLiteral(")")},
        {QStringLiteral("EXISTS (SELECT Code FROM T WHERE "), QStringLiteral("Code=1"), QStringLiteral(")")},
        {QString(), QStringLiteral("Code"), QStringLiteral("+1")},
        {QString(), QStringLiteral("Code=1"), QStringLiteral(" AND Code=1")},
        {QString(), QStringLiteral("Code=1"), QStringLiteral(" XOR Code=1")},
        {QString(), QStringLiteral("Code"), QStringLiteral(" MOD 2")},
        {QString(), QStringLiteral("Code"), QStringLiteral("&'a'")},

    };
    for (const auto& shape : shapes) {
        for (const int depth : {3, 20, 60, 190, 800, 20000}) {
            const QString sql = nested(shape.open, shape.middle, shape.close, depth);
            try {
                Recordset rows = database.OpenRecordset(sql);
                rows.Eof();
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.number(), 3360) << depth << ' ' << sql.left(60).toStdString() << error.what();
            }
        }
    }
    database.Close();
}

// Statements with pieces lost, doubled and exchanged: an error of the dialect is right, a crash is not, and
// neither is a text that the engine does not understand.
TEST(Translator, StandsBrokenStatements) {
    const QTemporaryDir folder;
    Database& database = *DBEngine::Workspaces(0).CreateDatabase(
        folder.filePath(QStringLiteral("Broken.MDB")), QStringLiteral("MS Access;PWD=broken"));
    for (const char16_t* table : {u"T", u"U"}) {
        database.Execute(
            QStringLiteral(
                "CREATE TABLE %1(Code Long PRIMARY KEY, Namae Text(20), Gaku Currency, Hi DateTime)")
                .arg(QString::fromUtf16(table)));
    }
    const QStringList seeds{
        QStringLiteral(
            "SELECT TOP 5 a.Code, First(b.Gaku) AS g FROM (T AS a LEFT JOIN U AS b ON a.Code = b.Code) "
            "WHERE a.Namae LIKE '*x[!a-c]' AND b.Hi >= #1/2/2003# GROUP BY a.Code ORDER BY First(b.Gaku) "
            "DESC"),
        QStringLiteral(
            "UPDATE T INNER JOIN U ON T.Code=U.Code SET T.Gaku = [U].[Gaku]*1.5, T.Namae='a''b' & U.Namae"),
        QStringLiteral("INSERT INTO T(Code, Namae) SELECT IIF(Code IN (1,2),-3,Code), \"q\" FROM U UNION "
                       "SELECT 1, NULL"),
        QStringLiteral("CREATE TABLE V(Code Long NOT NULL, Namae Text(5), CONSTRAINT k PRIMARY KEY (Code))"),
        QStringLiteral(
            "DELETE T.* FROM T INNER JOIN U ON T.Code=U.Code WHERE NOT EXISTS (SELECT * FROM U) XOR TRUE"),
    };
    std::mt19937 random(7164);
    const auto pick = [&](qsizetype below) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(below));
    };
    const Action action;
    int understood = 0;
    for (int round = 0; round < 4000; ++round) {
        QStringList words = seeds[pick(seeds.size())].split(u' ');
        for (int change = round % 3; change < 3; ++change) {
            const qsizetype place = pick(words.size());
            const QStringList other = seeds[pick(seeds.size())].split(u' ');
            switch (random() % 4) {
                case 0:
                    words[place] = other[pick(other.size())];
                    break;
                case 1:
                    words.insert(place, words[pick(words.size())]);
                    break;
                case 2:
                    words[place].truncate(pick(words[place].size() + 1));
                    break;
                default:
                    words[place].append(QStringLiteral("()[]'\"#.,*-;=é")[pick(14)]);
                    break;
            }
        }
        const QString sql = words.join(u' ');
        try {
            if (sql.startsWith(u"SELECT")) {
                database.OpenRecordset(sql).Eof();
            } else {
                database.Execute(sql);
            }
            ++understood;
        } catch (const RuntimeError& error) {
            const QString& text = error.description();
            EXPECT_FALSE(text.contains(u"near ") || text.contains(u"no such") || text.contains(u"misuse"))
                << sql.toStdString() << error.what();
        }
    }
    EXPECT_GT(understood, 100);
    database.Close();
}

}  // namespace
}  // namespace akarix
