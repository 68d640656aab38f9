#include "planets/read_file.h"
#include "saves/game_members.h"
#include "saves/game_text.h"
#include "saves/json_writer.h"

namespace ksm {

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

} // namespace ksm
