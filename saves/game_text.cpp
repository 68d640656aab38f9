#include "saves/game_text.h"

#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "planets/read_file.h"
#include "saves/game_checks.h"
#include "saves/game_members.h"
#include "saves/json_reader.h"
#include "saves/json_writer.h"

namespace ksm {

namespace {

Failure Damaged(const std::string& problem) { return {"The saved game is damaged: " + problem}; }

void ComputeWhatFollows(Game& game) {
    for (PlayerRecord& player : game.Players) {
        SetCostsOfRace(player);
    }
    UpdateValues(game);
    TurnOrder(game);
}

} // namespace

Outcome<QByteArray> WriteGame(const GameState& state, QJsonDocument::JsonFormat format) {
    JsonWriter members;
    GameMembers::Describe(members, state);
    const QJsonObject file{
        {"Format", GameFormat}, {"Version", GameFormatVersion}, {"Game", members.Result()}};
    QByteArray bytes = QJsonDocument(file).toJson(format);
    if (static_cast<std::uintmax_t>(bytes.size()) > LargestFile) {
        return Failure{"The game is larger than 1 MiB, the most that a saved game can hold. "
                       "Shorten the notes."};
    }
    return bytes;
}

Outcome<GameState> ReadGame(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull()) {
        const QString problem =
            QString("%1 at byte %2.").arg(error.errorString()).arg(error.offset);
        return Failure{"The file is not a saved game, or it is damaged: " + problem.toStdString()};
    }
    QJsonObject file = document.object();
    if (file.take("Format") != QJsonValue(GameFormat)) {
        return Failure{"The file is not a saved game of this program."};
    }
    // What a later version writes may look different in every other respect.
    if (file.value("Version").toDouble() > GameFormatVersion) {
        return Failure{"The game was saved by a later version of this program."};
    }
    QString problem;
    JsonReader members(file, {}, problem);
    int version = 0;
    GameState state;
    members.Number("Version", version, GameFormatVersion, GameFormatVersion);
    members.Object("Game", state,
                   [](JsonReader& game, GameState& read) { GameMembers::Describe(game, read); });
    members.Finish();
    if (!problem.isEmpty()) {
        return Damaged(problem.toStdString());
    }
    ComputeWhatFollows(state.Game);
    if (const Outcome<> checked = CheckGame(state); !checked) {
        return Damaged("Game." + checked.Reason());
    }
    return state;
}

} // namespace ksm
