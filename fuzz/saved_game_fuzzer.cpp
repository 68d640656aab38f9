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
    const Outcome<GameState> first = ReadGame(bytes);
    if (!first) {
        Require(!first.Reason().empty());
        return 0;
    }
    const Outcome<QByteArray> saved = WriteGame(*first);
    if (saved) {
        const Outcome<GameState> second = ReadGame(*saved);
        Require(second && *second == *first);
        Require(*WriteGame(*second) == *saved);
    }
    return 0;
}
