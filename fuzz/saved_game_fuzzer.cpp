// Reads any bytes as a saved game. A game that is accepted must survive being saved and loaded.

#include "saves/game_text.h"

#include <cstdlib>

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ksm;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the same bytes.
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const ReadGameResult first = ReadGame(bytes);
    Require(first.Game.has_value() == first.Problem.isEmpty());
    if (!first.Game) {
        return 0;
    }
    const QByteArray saved = WriteGame(*first.Game);
    const ReadGameResult second = ReadGame(saved);
    Require(second.Game.has_value());
    Require(*second.Game == *first.Game);
    Require(WriteGame(*second.Game) == saved);
    return 0;
}
