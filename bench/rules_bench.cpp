// How long the rules take, and how that grows with the game.

#include "bench/full_game.h"
#include "economy/value_update.h"
#include "planets/planet_list_file.h"

#include <benchmark/benchmark.h>

namespace ksm {
namespace {

void UpdateFigures(benchmark::State& run) {
    Game game = FullGame(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
    for ([[maybe_unused]] auto _ : run) {
        UpdateValues(game);
        benchmark::DoNotOptimize(game);
    }
}
BENCHMARK(UpdateFigures)
    ->ArgNames({"players", "planets"})
    ->Args({10, 101})
    ->Args({10, 50})
    ->Args({10, 25})
    ->Args({10, 10})
    ->Args({2, 101})
    ->Args({4, 101})
    ->Args({6, 101})
    ->Args({8, 101});

void LoadPlanetList(benchmark::State& run) {
    std::string bytes;
    for (int line = 0; line < MaxPlanets; ++line) {
        bytes += "World" + std::to_string(line) + ",3,2,blue\r\n";
    }
    for ([[maybe_unused]] auto _ : run) {
        Outcome<PlanetList> list = ReadPlanetList(bytes);
        benchmark::DoNotOptimize(list);
    }
    run.SetBytesProcessed(run.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(LoadPlanetList);

} // namespace
} // namespace ksm

BENCHMARK_MAIN();
