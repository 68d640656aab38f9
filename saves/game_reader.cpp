#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "saves/game_checks.h"
#include "saves/game_members.h"
#include "saves/game_text.h"
#include "saves/json_reader.h"

#include <QJsonDocument>

namespace ksm {

namespace {

ReadGameResult Refused(const QString& problem) {
    return {std::nullopt, problem};
}

ReadGameResult Damaged(const QString& problem) {
    return Refused("The saved game is damaged: " + problem);
}

void ComputeWhatFollows(Game& game) {
    for (PlayerRecord& player : game.Players) {
        TakeCostsOfRace(player);
    }
    UpdateValues(game);
    TurnOrder(game);
}

} // namespace

ReadGameResult ReadGame(const QByteArray& bytes) {
    if (bytes.size() > LargestGameFile) {
        return Refused("The file is larger than 1 MiB.");
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull()) {
        return Refused(QString("The file is not a saved game, or it is damaged: %1 at byte %2.")
                           .arg(error.errorString())
                           .arg(error.offset));
    }
    QJsonObject file = document.object();
    if (file.take("Format") != QJsonValue(GameFormat)) {
        return Refused("The file is not a saved game of this program.");
    }
    // What a later version writes may look different in every other respect.
    if (file.value("Version").toDouble() > GameFormatVersion) {
        return Refused("The game was saved by a later version of this program.");
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
        return Damaged(problem);
    }
    ComputeWhatFollows(state.Game);
    const std::string contradiction = FindContradiction(state);
    if (!contradiction.empty()) {
        return Damaged("Game." + QString::fromStdString(contradiction));
    }
    return {std::move(state), {}};
}

} // namespace ksm
