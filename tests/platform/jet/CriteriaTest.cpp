#include "platform/jet/Criteria.h"

#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

ResultColumn column(const char16_t* name, FieldType type) {
    ResultColumn made;
    made.name = QString::fromUtf16(name);
    made.type = type;
    return made;
}

const std::vector<ResultColumn> kColumns{column(u"Code", FieldType::Long), column(u"Namae", FieldType::Text),
                                         column(u"Gaku", FieldType::Currency),
                                         column(u"Hi", FieldType::Date)};

TEST(Criteria, JudgesRowsAsAWhereWould) {
    const std::vector<StoreValue> row{std::int64_t{123}, QStringLiteral("Abc"), std::int64_t{15000}, 40607.0};
    const std::vector<StoreValue> empty{std::int64_t{2}, {}, {}, {}};
    struct Case {
        const char* text;
        bool row;
        bool empty;
    };
    const Case cases[] = {
        {"Code=123", true, false},
        {"code = 123 AND [NAMAE]='aBC'", true, false},
        {"Code=2 OR Gaku=1.5", true, true},
        {"Gaku>1.49999 AND Gaku<=1.5", true, false},
        {"Gaku*2+Code=126", true, false},
        {"Gaku*Gaku=2.25", true, false},
        {"Namae LIKE 'a?[a-c]*'", true, false},
        {"Namae NOT LIKE '*z*'", true, false},
        {"Namae IS NULL", false, true},
        {"NOT Namae='x'", true, false},
        {"Code IN (1,2,NULL)", false, true},
        {"Code NOT IN (1,NULL)", false, false},
        {"Gaku BETWEEN 1 AND 2 OR Code NOT BETWEEN 3 AND 200", true, true},
        {"Code BETWEEN 200 AND 100 AND Namae BETWEEN 'b' AND 'A'", true, false},
        {"Hi=#3/5/2011#", true, false},
        {"Hi>CDATE('2011/03/04') XOR Code=123", false, false},
        {"Len(Namae)=3 AND Code MOD 2=1", true, false},
        {"Code", true, true},
        {"NULL", false, false},
    };
    for (const Case& one : cases) {
        const Criteria criteria(QString::fromUtf8(one.text), kColumns);
        EXPECT_EQ(criteria.matches(row), one.row) << one.text;
        EXPECT_EQ(criteria.matches(empty), one.empty) << one.text;
    }
}

TEST(Criteria, RefusesWhatItCannotJudge) {
    const std::pair<const char*, int> cases[] = {
        {"Kana=1", 3061},
        {"Namae=5", 3464},
        {"Code=", 3075},
        {"Code=1 ORDER BY Code", 3075},
        {"SUM(Code)=1", 3096},
        {"Code IN (SELECT Code FROM T)", 3075},
        {"", 3075},
    };
    for (const auto& [text, number] : cases) {
        try {
            const Criteria criteria(QString::fromUtf8(text), kColumns);
            ADD_FAILURE() << text;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), number) << text;
        }
    }
}

}  // namespace
}  // namespace akarix
