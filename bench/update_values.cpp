// Recomputes the figures of a full game as often as the first argument says, for a profiler.

#include "bench/full_game.h"
#include "economy/value_update.h"

#include <cstdlib>

int main(int argc, char* argv[]) {
    ksm::Game game = ksm::FullGame(ksm::MaxPlayers, ksm::MaxPlanets);
    const int runs = argc > 1 ? std::atoi(argv[1]) : 1;
    for (int run = 0; run < runs; ++run) {
        ksm::UpdateValues(game);
    }
    return game.TradeCount == 45 ? 0 : 1;
}
