#include "saves/kept_game.h"

#include "saves/game_text.h"
#include "saves/replace_file.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace ksm {

namespace {

// A link is renamed itself: what it leads to belongs to somebody else.
QString RenameEarlierGame() {
    const QFileInfo earlier(KeptGameName);
    if (!earlier.exists() && !earlier.isSymLink()) {
        return {};
    }
    if (!earlier.isSymLink() && !earlier.isFile()) {
        return "This is not a file.";
    }
    std::error_code error;
    std::filesystem::rename(KeptGameName, EarlierGameName, error);
    return error ? QString::fromStdString(error.message()) : QString();
}

} // namespace

void KeptGame::Keep(const GameState& state) {
    const bool changed = state.Game != kept.Game || state.NotesText != kept.NotesText;
    if (changed || !problem.isEmpty()) {
        problem = Write(state);
        kept = state;
    }
}

QString KeptGame::Write(const GameState& state) {
    const QByteArray content = WriteGame(state, QJsonDocument::Compact);
    if (content.size() > LargestGameFile) {
        return "The game is larger than 1 MiB, the most that a saved game can hold. "
               "Shorten the notes.";
    }
    if (!isOurs) {
        QString refused = RenameEarlierGame();
        if (!refused.isEmpty()) {
            return refused;
        }
        RemoveLeftovers(".");
    }
    QString refused = ReplaceFile(KeptGameName, content, Durability::Process);
    isOurs = isOurs || refused.isEmpty();
    return refused;
}

} // namespace ksm
