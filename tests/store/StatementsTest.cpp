#include "platform/dialect/Engine.h"
#include "platform/dialect/Translator.h"
#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

int ErrorOf(Translator& translator, const QString& sql) {
    try {
        if (translator.translate(sql).statement->query())
            gDb->OpenRecordset(sql).Eof();
        else
            gDb->Execute(sql);
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

TEST(Statements, AllThatAreSentAreUnderstood) {
    const ScratchStore store;
    Translator translator(gDb->engine().catalogue());
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/statements.txt"))
        EXPECT_EQ(ErrorOf(translator, cells[0]), cells.value(1).toInt()) << line;
}

}  // namespace
}  // namespace akarix
