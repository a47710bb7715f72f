// What the literal statements of the screens cost before the engine sees them: a text whose plan is kept, and
// one that is seen for the first time.

#include <benchmark/benchmark.h>

#include "platform/dialect/Translator.h"
#include "store/Tables.h"

namespace akarix::bench {
namespace {

const Catalogue& MakeCatalogue() {
    static const Catalogue all = [] {
        Catalogue tables;
        for (const TableDef& table : Tables())
            tables.put(table);
        return tables;
    }();
    return all;
}

const char* const kStatements[] = {
    "INSERT INTO TtoD(Deal, Nendo, Getudo, GGaku) VALUES(%1,2024,3,0)",
    " UPDATE TtoD  SET   GGaku =4980 WHERE Deal  =%1 AND   Nendo =2024 AND   Getudo=3",
    "SELECT ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg  FROM  TtoD  WHERE Deal=%1 AND   "
    "Nendo*100+Getudo<202403 ORDER BY [Nendo]*100+[Getudo] DESC;",
    "SELECT TtoD.*, Deal.Rte,Deal.Haisou FROM TtoD  INNER JOIN Deal ON TtoD.Deal=Deal.Code  WHERE Nendo "
    "=2024 AND   Getudo=3 AND Deal>=%1 ORDER BY Deal.Rte,Deal.Haisou,Deal.Code",
};

std::vector<QString> Texts(const benchmark::State& state) {
    const QString form = QString::fromLatin1(kStatements[state.range(0)]);
    std::vector<QString> all;
    for (int deal = 1; deal <= 1000; ++deal)
        all.push_back(form.arg(deal));
    return all;
}

void KeptPlan(benchmark::State& state) {
    Translator translator(MakeCatalogue());
    const std::vector<QString> all = Texts(state);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(translator.translate(all[next++ % all.size()]));
}

void NewPlan(benchmark::State& state) {
    const std::vector<QString> all = Texts(state);
    std::size_t next = 0;
    for (auto _ : state) {
        Translator translator(MakeCatalogue());
        benchmark::DoNotOptimize(translator.translate(all[next++ % all.size()]));
    }
}

BENCHMARK(KeptPlan)->DenseRange(0, 3);
BENCHMARK(NewPlan)->DenseRange(0, 3);

}  // namespace
}  // namespace akarix::bench

BENCHMARK_MAIN();
