#include "platform/dao/Criteria.h"

#include "platform/dao/StoreFixture.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

ResultColumn Column(const char16_t* name, FieldType type) {
    ResultColumn made;
    made.name = QString::fromUtf16(name);
    made.type = type;
    return made;
}

const std::vector<ResultColumn> kColumns{Column(u"Code", FieldType::Long), Column(u"Namae", FieldType::Text),
                                         Column(u"Gaku", FieldType::Currency),
                                         Column(u"Hi", FieldType::Date)};

const char* const kCases = AKARIX_TEST_DATA "/criteria.txt";

TEST(Criteria, JudgesRowsAsAWhereWould) {
    const std::vector<StoreValue> row{std::int64_t{123}, "Abc", std::int64_t{15000}, 40607.0};
    const std::vector<StoreValue> empty{std::int64_t{2}, {}, {}, {}};
    for (const auto& [cells, line] : ReadTable(kCases, "judged")) {
        const Criteria criteria(cells[0], kColumns);
        EXPECT_EQ(criteria.matches(row), cells[1] == "true") << line;
        EXPECT_EQ(criteria.matches(empty), cells[2] == "true") << line;
    }
}

TEST(Criteria, RefusesWhatItCannotJudge) {
    for (const auto& [cells, line] : ReadTable(kCases, "refused"))
        EXPECT_EQ(ErrorOf([&] { const Criteria criteria(cells[0], kColumns); }), cells[1].toInt()) << line;
}

}  // namespace
}  // namespace akarix
