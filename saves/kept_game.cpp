#include "saves/kept_game.h"

#include "planets/read_file.h"
#include "saves/game_text.h"
#include "saves/replace_file.h"

#include <system_error>

namespace ksm {

namespace {

namespace fs = std::filesystem;

// A link is renamed itself: what it leads to belongs to somebody else.
Outcome<> RenameEarlierGame() {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(KeptGameName, error);
    if (!fs::exists(status)) {
        return {};
    }
    if (!fs::is_symlink(status) && !fs::is_regular_file(status)) {
        return CheckFile(KeptGameName);
    }
    fs::rename(KeptGameName, EarlierGameName, error);
    return error ? Failure{error.message()} : Outcome();
}

} // namespace

void KeptGame::Keep(const GameState& state) {
    if (state.Game != kept.Game || state.NotesText != kept.NotesText || !outcome) {
        outcome = Write(state);
        kept = state;
    }
}

Outcome<> KeptGame::Write(const GameState& state) {
    const Outcome<QByteArray> content = WriteGame(state, QJsonDocument::Compact);
    if (!content) {
        return Failure{content.Reason()};
    }
    if (!isOurs) {
        if (Outcome<> renamed = RenameEarlierGame(); !renamed) {
            return renamed;
        }
        RemoveLeftovers(".");
    }
    const std::string_view bytes(content->data(), static_cast<std::size_t>(content->size()));
    Outcome<> written = ReplaceFile(fs::path(".") / KeptGameName, bytes, Durability::Process);
    isOurs = isOurs || written;
    return written;
}

} // namespace ksm
