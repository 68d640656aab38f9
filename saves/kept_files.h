// The files in which games are kept, from the running game to the one played longest ago.
#pragma once

#include "model/outcome.h"

#include <array>
#include <cstdint>

namespace ksm {

/// In the current folder: the running game, and those that were played before it.
inline constexpr std::array KeptGameNames{"autosave.ksm", "autosave-1.ksm", "autosave-2.ksm",
                                          "autosave-3.ksm", "autosave-4.ksm"};
inline constexpr auto KeptGameName = KeptGameNames.front();

/// Moves games from name to name so that the three that were started last are always among them.
/// Games are told apart by when they were started; one that never was is not worth a name. What is
/// no saved game takes up a name like one, and is never removed.
class KeptFiles {
public:
    /// Reads what there is. `start` tells when the running game was started.
    explicit KeptFiles(std::int64_t start);

    /// To be called before the running game is written: moves another game that was started from
    /// its name to the next one, and those behind it likewise. The reason of a failure names the
    /// file that stands in the way.
    Outcome<> MakeRoom();
    /// To be called when the running game is written: removes what it or another file replaces.
    void Tidy();

private:
    /// When a game was started: 0 where it never was, and where there is none.
    using Start = Outcome<std::int64_t>;

    /// Whether a name before it holds the same game, as it was played later.
    bool IsRepeated(std::size_t place) const;
    /// Whether the game can be spared: it is neither running nor among the three started last.
    bool MayGo(std::size_t place) const;
    /// 0 where there is none.
    std::size_t LastThatMayGo() const;
    void Remove(std::size_t place);

    std::int64_t running;
    std::int64_t thirdLast = 0; ///< when the third of the games started last was started
    std::array<Start, KeptGameNames.size()> starts;
};

} // namespace ksm
