#include "dialogs/game_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringConverter>

#include <algorithm>

namespace ksm {

namespace {

// Bytes that are no UTF-8 become replacement characters, so that the file can always be read. A
// byte order mark is a character like any other.
QString Text(const std::string& utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

template<typename Enum, std::size_t Size>
QJsonValue Word(Enum value, const std::array<std::string_view, Size>& words) {
    const std::string_view word = words.at(static_cast<std::size_t>(value));
    return QLatin1StringView(word.data(), static_cast<qsizetype>(word.size()));
}

QJsonValue Json(Colour colour) {
    return QString::asprintf("#%02X%02X%02X", colour.Red, colour.Green, colour.Blue);
}

QJsonObject Json(const ColourPair& colours) {
    return {{"Back", Json(colours.Back)}, {"Text", Json(colours.Text)}};
}

QJsonArray Json(const PlanetIndexList& planets) {
    QJsonArray list;
    for (const std::uint8_t planet : planets) {
        if (planet != NoPlanet)
            list.append(planet);
    }
    return list;
}

QJsonObject Json(const PlanetRecord& planet) {
    return {{"Name", Text(planet.Name)},
            {"Resources", planet.Resources},
            {"Influence", planet.Influence},
            {"Specialty", Word(planet.Specialty, SpecialtyWords)},
            {"Owner", planet.Owner}};
}

QJsonArray JsonPlanets(const GameState& state) {
    QJsonArray planets;
    for (int slot = 0; slot < state.NumPlanets; ++slot)
        planets.append(Json(state.Planet(slot)));
    return planets;
}

QJsonObject Json(const PlayerRecord& record, const PlayerControls& controls) {
    return {{"Name", Text(record.Name)},
            {"Named", controls.Named},
            {"ShortName", Text(controls.ShortName)},
            {"NameColours", Json(controls.NameColours)},
            {"TradeColours", Json(controls.TradeColours)},
            {"TradeRing", controls.TradeRing},
            {"Race", Word(controls.Race, RaceCaptions)},
            {"RedCost", record.RedCost},
            {"BlueCost", record.BlueCost},
            {"YellowCost", record.YellowCost},
            {"GreenCost", record.GreenCost},
            {"SpaceDocks", controls.SpaceDocks},
            {"Enviro", controls.Enviro},
            {"PellamTools", controls.PellamTools},
            {"PellamToolsEnabled", controls.PellamToolsEnabled},
            {"Micro", controls.Micro},
            {"MicroEnabled", controls.MicroEnabled},
            {"PlanetList", Json(record.PlanetList)}};
}

QJsonArray JsonPlayers(const GameState& state) {
    QJsonArray players;
    for (int player = 1; player <= MaxPlayers; ++player) {
        players.append(Json(state.Player(player), state.Controls[player]));
    }
    return players;
}

// One pair for each agreement: the player who made it, then the partner.
QJsonArray JsonAgreements(const GameState& state) {
    QJsonArray agreements;
    for (int maker = 1; maker <= MaxPlayers; ++maker) {
        for (int partner = 1; partner <= MaxPlayers; ++partner) {
            if (state.Cell(maker, partner) == NoAgreement)
                continue;
            agreements.append(QJsonArray{maker, partner});
        }
    }
    return agreements;
}

QJsonObject Json(const LawMarks& laws) {
    return {{"LabourUnion", laws.LabourUnion},
            {"EconomicIndependence", laws.EconomicIndependence},
            {"FreeTrade", laws.FreeTrade},
            {"TradeRestrictions", laws.TradeRestrictions},
            {"OrlenHouseRules", laws.OrlenHouseRules}};
}

QJsonObject Json(const GameState& state) {
    return {{"NumPlayers", state.NumPlayers},
            {"Started", state.Started},
            {"Planets", JsonPlanets(state)},
            {"NeutralPlanetList", Json(state.Player(NeutralOwner).PlanetList)},
            {"Players", JsonPlayers(state)},
            {"TradeAgreements", JsonAgreements(state)},
            {"TradeMode", Word(state.TradeMode, TradeModeWords)},
            {"TradeFirst", state.TradeFirst},
            {"TradeInfo", Text(state.TradeInfo)},
            {"IndepFirst", state.IndepFirst},
            {"IndepSecond", state.IndepSecond},
            {"Laws", Json(state.Laws)},
            {"GreenModifier", state.GreenModifier},
            {"BlueModifier", state.BlueModifier},
            {"YellowModifier", state.YellowModifier},
            {"RedModifier", state.RedModifier},
            {"BoardPlayer", state.BoardPlayer},
            {"BoardPosition", state.BoardPosition},
            {"EditedPlayer", state.EditedPlayer},
            {"NotesText", Text(state.NotesText)}};
}

// A byte order mark is escaped, since at the start of a text it would be lost in reading.
QByteArray OneLine(const QJsonValue& value) {
    QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.sliced(1, list.size() - 2).replace("\xEF\xBB\xBF", "\\ufeff");
}

bool IsContainer(const QJsonValue& value) {
    return value.isArray() || value.isObject();
}

bool HoldsContainers(const QJsonValue& value) {
    const QJsonArray array = value.toArray();
    const QJsonObject object = value.toObject();
    return std::any_of(array.begin(), array.end(), IsContainer) ||
           std::any_of(object.begin(), object.end(), IsContainer);
}

// A planet, an agreement, a list of numbers each take one line, so that two saved games can be
// compared line by line; what holds such things takes a line for each.
void Append(QByteArray& text, const QJsonValue& value, const QByteArray& indent) {
    if (!HoldsContainers(value)) {
        text += OneLine(value);
        return;
    }
    const QByteArray inner = indent + "  ";
    const char* separator = "\n";
    text += value.isArray() ? '[' : '{';
    for (const QJsonValue element : value.toArray()) {
        text += separator + inner;
        Append(text, element, inner);
        separator = ",\n";
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        text += separator + inner + OneLine(member.key()) + ": ";
        Append(text, member.value(), inner);
        separator = ",\n";
    }
    text += '\n' + indent + (value.isArray() ? ']' : '}');
}

} // namespace

QByteArray WriteGame(const GameState& state) {
    const QJsonObject file{
        {"Format", GameFormat}, {"Version", GameFormatVersion}, {"Game", Json(state)}};
    QByteArray text;
    Append(text, file, {});
    return text + '\n';
}

} // namespace ksm
