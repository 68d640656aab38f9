#include "saves/kept_files.h"

#include "saves/game_file.h"
#include "saves/system.h"

#include <QString>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <span>
#include <system_error>

namespace ksm {

namespace {

namespace fs = std::filesystem;

// A link is looked at itself: what it leads to belongs to somebody else.
fs::file_type TypeOf(const char* name) {
    std::error_code ignored;
    return fs::symlink_status(name, ignored).type();
}

Outcome<std::int64_t> StartOf(const char* name) {
    if (TypeOf(name) == fs::file_type::not_found) {
        return 0;
    }
    const Outcome<GameState> game = LoadGameFile(name);
    if (!game) {
        return Failure{game.Reason()};
    }
    return game->Game.StartTime;
}

} // namespace

KeptFiles::KeptFiles(std::int64_t start) : running(start) {
    std::ranges::transform(KeptGameNames, starts.begin(), StartOf);
    std::set<std::int64_t, std::greater<>> all{running};
    for (const Start& found : starts) {
        all.insert(found ? *found : 0);
    }
    all.erase(0);
    thirdLast = all.size() < 3 ? 0 : *std::next(all.begin(), 2);
}

Outcome<> KeptFiles::MakeRoom() {
    if (starts[0] && (*starts[0] == 0 || *starts[0] == running)) {
        return {};
    }
    const auto nothing = std::ranges::find_if(starts, [](const Start& s) { return s && *s == 0; });
    std::size_t place = nothing == starts.end()
                            ? LastThatMayGo()
                            : static_cast<std::size_t>(nothing - starts.begin());
    if (place == 0 && !MayGo(0)) {
        return Failure{std::ranges::find_if_not(starts, &Start::operator bool)->Reason()};
    }
    for (; place > 0; --place) {
        const char* name = KeptGameNames[place - 1];
        const fs::file_type type = TypeOf(name);
        if (type != fs::file_type::regular && type != fs::file_type::symlink) {
            return Failure{starts[place - 1].Reason()};
        }
        const char* next = KeptGameNames[place];
        if (const Outcome<> renamed = Rename(name, next); !renamed) {
            return Failure{std::string("\"") + name + "\" cannot be renamed to \"" + next +
                           "\": " + renamed.Reason()};
        }
        starts[place] = starts[place - 1];
    }
    return {};
}

void KeptFiles::Tidy() {
    starts[0] = running;
    for (std::size_t place = 1; place < starts.size(); ++place) {
        if (IsRepeated(place)) {
            Remove(place);
        }
    }
    // One name stays free for a game that is not started yet.
    if (std::ranges::all_of(starts, [](const Start& s) { return s && *s != 0; })) {
        Remove(LastThatMayGo());
    }
}

bool KeptFiles::IsRepeated(std::size_t place) const {
    const auto isSame = [&](const Start& earlier) { return earlier && *earlier == *starts[place]; };
    return starts[place] && *starts[place] != 0 &&
           std::ranges::any_of(std::span(starts).first(place), isSame);
}

bool KeptFiles::MayGo(std::size_t place) const {
    const Start& start = starts[place];
    return start && (IsRepeated(place) || (*start != running && *start < thirdLast));
}

std::size_t KeptFiles::LastThatMayGo() const {
    std::size_t place = starts.size() - 1;
    while (place > 0 && !MayGo(place)) {
        --place;
    }
    return place;
}

void KeptFiles::Remove(std::size_t place) {
    std::error_code ignored;
    fs::remove(KeptGameNames[place], ignored);
    starts[place] = 0;
}

} // namespace ksm
