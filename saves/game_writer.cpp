#include "saves/game_members.h"
#include "saves/game_text.h"
#include "saves/json_writer.h"

namespace ksm {

QByteArray WriteGame(const GameState& state, QJsonDocument::JsonFormat format) {
    JsonWriter members;
    GameMembers::Describe(members, state);
    const QJsonObject file{
        {"Format", GameFormat}, {"Version", GameFormatVersion}, {"Game", members.Result()}};
    return QJsonDocument(file).toJson(format);
}

} // namespace ksm
