#include "saves/kept_game.h"

#include "planets/read_file.h"
#include "saves/game_text.h"
#include "saves/kept_files.h"
#include "saves/replace_file.h"

#include <optional>

namespace ksm {

void KeptGame::Keep(const GameState& state) {
    if (state.Game != last.Game || state.NotesText != last.NotesText || !outcome) {
        outcome = Write(state);
        last = state;
    }
}

Outcome<> KeptGame::Write(const GameState& state) {
    const Outcome<QByteArray> content = WriteGame(state, QJsonDocument::Compact);
    if (!content) {
        return Failure{content.Reason()};
    }
    if (Outcome<> ours = CheckIsOurs(); !ours) {
        return ours;
    }
    std::optional<KeptFiles> files;
    if (written.empty() || startTime != state.Game.StartTime) {
        files.emplace(state.Game.StartTime);
        if (Outcome<> room = files->MakeRoom(); !room) {
            return room;
        }
        RemoveLeftovers(".");
    }
    const std::string bytes = content->toStdString();
    const auto path = std::filesystem::path(".") / KeptGameName;
    if (Outcome<> done = ReplaceFile(path, bytes, Durability::Process); !done) {
        return done;
    }
    written = bytes;
    startTime = state.Game.StartTime;
    if (files) {
        files->Tidy();
    }
    return {};
}

Outcome<> KeptGame::CheckIsOurs() const {
    std::error_code ignored;
    if (written.empty() || !exists(std::filesystem::symlink_status(KeptGameName, ignored))) {
        return {};
    }
    const Outcome<std::string> found = ReadFile(KeptGameName);
    if (!found) {
        return Failure{found.Reason()};
    }
    return *found == written ? Outcome() : Failure{"Another program keeps its game there."};
}

} // namespace ksm
