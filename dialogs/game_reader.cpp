#include "app/races.h"
#include "dialogs/game_text.h"
#include "dialogs/json_members.h"

#include <QJsonDocument>

#include <algorithm>
#include <limits>

namespace ksm {

namespace {

constexpr int LargestByte = std::numeric_limits<std::uint8_t>::max();

Colour ReadColour(JsonMembers& members, const char* name) {
    const std::string text = members.Text(name);
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); };
    if (text.size() != 7 || text[0] != '#' || !std::all_of(text.begin() + 1, text.end(), isDigit)) {
        members.Refuse(members.Place(name), "is not a colour such as #FF8000");
        return {};
    }
    const auto part = [&](std::size_t at) {
        return static_cast<std::uint8_t>(std::stoi(text.substr(at, 2), nullptr, 16));
    };
    return {part(1), part(3), part(5)};
}

ColourPair ReadColours(JsonMembers pair) {
    const ColourPair colours{ReadColour(pair, "Back"), ReadColour(pair, "Text")};
    pair.Finish();
    return colours;
}

PlanetRecord ReadPlanet(JsonMembers members) {
    PlanetRecord planet;
    planet.Name = members.Text("Name");
    planet.Resources = members.Number<std::uint8_t>("Resources", 0, LargestByte);
    planet.Influence = members.Number<std::uint8_t>("Influence", 0, LargestByte);
    planet.Specialty = members.Word<Specialty>("Specialty", SpecialtyWords);
    planet.Owner = members.Number<std::uint8_t>("Owner", NeutralOwner, MaxPlayers);
    members.Finish();
    return planet;
}

// A list may hold planets that its owner lost, and one planet twice: transfers leave that behind.
PlanetIndexList ReadPlanetList(JsonMembers& members, const char* name, int planets) {
    PlanetIndexList list = EmptyPlanetList();
    const QJsonArray indices = members.List(name, 0, MaxPlanets);
    for (qsizetype i = 0; i < indices.size(); ++i) {
        const int planet = members.CheckNumber(indices[i], members.Place(name, i), 0, planets - 1);
        list.at(static_cast<std::size_t>(i)) = static_cast<std::uint8_t>(planet);
    }
    return list;
}

// Costs come with the choice of a race and in no other way.
void CheckCosts(JsonMembers& members, const PlayerRecord& record, Race race) {
    GameState chosen;
    if (race != Race::None)
        ChooseRace(chosen, 1, race);
    const PlayerRecord& given = chosen.Player(1);
    if (record.RedCost != given.RedCost || record.BlueCost != given.BlueCost ||
        record.YellowCost != given.YellowCost || record.GreenCost != given.GreenCost) {
        members.Refuse(members.Place("Race"), "does not have the costs given there");
    }
}

// Whether a box may be enabled depends on the past, but not every combination has one.
void CheckBoxes(JsonMembers& members, const PlayerControls& controls) {
    if ((controls.PellamTools || controls.Enviro) && !controls.PellamToolsEnabled) {
        members.Refuse(members.Place("PellamToolsEnabled"), "contradicts the boxes ticked");
    }
    if ((controls.Micro || controls.PellamToolsEnabled) && !controls.MicroEnabled) {
        members.Refuse(members.Place("MicroEnabled"), "contradicts the other boxes");
    }
}

void ReadPlayer(JsonMembers members, int planets, PlayerRecord& record, PlayerControls& controls) {
    record.Name = members.Text("Name");
    controls.Named = members.Truth("Named");
    if (!controls.Named && !record.Name.empty()) {
        members.Refuse(members.Place("Name"), "belongs to a player who has no name yet");
    }
    controls.ShortName = members.Text("ShortName");
    controls.NameColours = ReadColours(members.Object("NameColours"));
    controls.TradeColours = ReadColours(members.Object("TradeColours"));
    controls.TradeRing = members.Number("TradeRing", MinPlayers, MaxPlayers);
    controls.Race = members.Word<Race>("Race", RaceCaptions);
    record.RedCost = members.Number<std::uint8_t>("RedCost", 0, LargestByte);
    record.BlueCost = members.Number<std::uint8_t>("BlueCost", 0, LargestByte);
    record.YellowCost = members.Number<std::uint8_t>("YellowCost", 0, LargestByte);
    record.GreenCost = members.Number<std::uint8_t>("GreenCost", 0, LargestByte);
    CheckCosts(members, record, controls.Race);
    controls.SpaceDocks = members.Number("SpaceDocks", 0, MaxSpaceDocks);
    controls.Enviro = members.Truth("Enviro");
    controls.PellamTools = members.Truth("PellamTools");
    controls.PellamToolsEnabled = members.Truth("PellamToolsEnabled");
    controls.Micro = members.Truth("Micro");
    controls.MicroEnabled = members.Truth("MicroEnabled");
    CheckBoxes(members, controls);
    record.PlanetList = ReadPlanetList(members, "PlanetList", planets);
    members.Finish();
}

LawMarks ReadLaws(JsonMembers members) {
    LawMarks laws;
    laws.LabourUnion = members.Truth("LabourUnion");
    laws.EconomicIndependence = members.Truth("EconomicIndependence");
    laws.FreeTrade = members.Truth("FreeTrade");
    laws.TradeRestrictions = members.Truth("TradeRestrictions");
    laws.OrlenHouseRules = members.Truth("OrlenHouseRules");
    members.Finish();
    return laws;
}

// Reads the parts of the game one after another into a new game.
class GameReader {
public:
    GameReader(const JsonMembers& members, QString& problem)
        : game(members), firstProblem(problem) {}

    GameState Read() {
        ReadPlanets();
        ReadPlayers();
        ReadTrade();
        ReadModifiers();
        ReadBoard();
        state.Laws = ReadLaws(game.Object("Laws"));
        state.EditedPlayer = game.Number("EditedPlayer", 0, MaxPlayers);
        state.NotesText = game.Text("NotesText");
        state.Started = game.Truth("Started");
        game.Finish();
        return std::move(state);
    }

private:
    JsonMembers Element(const char* list, const QJsonValue& value, qsizetype index) {
        return {value, game.Place(list, index), firstProblem};
    }

    void ReadPlanets() {
        const QJsonArray planets = game.List("Planets", 1, MaxPlanets);
        for (qsizetype i = 0; i < planets.size(); ++i) {
            state.Planet(state.NumPlanets++) = ReadPlanet(Element("Planets", planets[i], i));
        }
        state.Player(NeutralOwner).PlanetList =
            ReadPlanetList(game, "NeutralPlanetList", state.NumPlanets);
    }

    // The first player has number 1 and stands at place 0 of the list.
    void ReadPlayers() {
        state.NumPlayers = game.Number("NumPlayers", MinPlayers, MaxPlayers);
        const QJsonArray players = game.List("Players", MaxPlayers, MaxPlayers);
        for (qsizetype i = 0; i < players.size(); ++i) {
            const int player = static_cast<int>(i) + 1;
            ReadPlayer(Element("Players", players[i], i), state.NumPlanets, state.Player(player),
                       state.Controls[player]);
            CheckRing(player);
        }
    }

    // The labels of the players in the game stand in the ring of the game, others in one that had a
    // place for them.
    void CheckRing(int player) {
        const int ring = state.Controls[player].TradeRing;
        if (player <= state.NumPlayers ? ring != state.NumPlayers : ring < player) {
            game.Refuse(game.Place("Players", player - 1), "stands in a ring without its place");
        }
    }

    void ReadTrade() {
        constexpr int MostAgreements = MaxPlayers * (MaxPlayers - 1) / 2;
        const QJsonArray pairs = game.List("TradeAgreements", 0, MostAgreements);
        for (qsizetype i = 0; i < pairs.size(); ++i)
            ReadAgreement(pairs[i].toArray(), i);
        state.TradeMode = game.Word<TradeMode>("TradeMode", TradeModeWords);
        state.TradeFirst = game.Number("TradeFirst", 0, MaxPlayers);
        const bool needsFirst =
            state.TradeMode == TradeMode::AddPartner || state.TradeMode == TradeMode::RemovePartner;
        if (needsFirst && state.TradeFirst == 0) {
            game.Refuse(game.Place("TradeFirst"), "names no player, but TradeMode needs one");
        }
        state.TradeInfo = game.Text("TradeInfo");
        // A law that is dissolved while its pair is picked leaves any combination behind, so these
        // two agree with nothing else.
        state.IndepFirst = game.Number("IndepFirst", 0, MaxPlayers);
        state.IndepSecond = game.Number("IndepSecond", 0, MaxPlayers);
    }

    void ReadAgreement(const QJsonArray& pair, qsizetype index) {
        const QString place = game.Place("TradeAgreements", index);
        if (pair.size() != 2)
            return game.Refuse(place, "is not a pair of players");
        const int maker = game.CheckNumber(pair[0], place, 1, MaxPlayers);
        const int partner = game.CheckNumber(pair[1], place, 1, MaxPlayers);
        if (maker == partner || state.Cell(maker, partner) == Agreement ||
            state.Cell(partner, maker) == Agreement) {
            return game.Refuse(place, "is an agreement that cannot be made");
        }
        state.Cell(maker, partner) = Agreement;
    }

    void ReadModifiers() {
        const auto read = [&](const char* name) {
            return game.Number<std::int16_t>(name, 0, MaxModifier);
        };
        state.GreenModifier = read("GreenModifier");
        state.BlueModifier = read("BlueModifier");
        state.YellowModifier = read("YellowModifier");
        state.RedModifier = read("RedModifier");
    }

    // The position can lie behind the last planet of the owner shown, who may have lost planets
    // since the board was listed.
    void ReadBoard() {
        state.BoardPlayer = game.Number("BoardPlayer", 0, AllPlanets);
        if (state.BoardPlayer > MaxPlayers && state.BoardPlayer != AllPlanets) {
            game.Refuse(game.Place("BoardPlayer"), "is no owner");
        }
        const int lastPosition = std::max(0, state.NumPlanets - BoardRowCount);
        state.BoardPosition = game.Number("BoardPosition", 0, lastPosition);
    }

    JsonMembers game;
    QString& firstProblem;
    GameState state;
};

ReadGameResult Refused(const QString& problem) {
    return {std::nullopt, problem};
}

ReadGameResult Damaged(const QString& problem) {
    return Refused("The saved game is damaged: " + problem);
}

} // namespace

ReadGameResult ReadGame(const QByteArray& bytes) {
    if (bytes.size() > LargestGameFile)
        return Refused("The file is larger than 1 MiB.");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull()) {
        return Refused(QString("The file is not a saved game, or it is damaged: %1 at byte %2.")
                           .arg(error.errorString())
                           .arg(error.offset));
    }
    const QJsonObject file = document.object();
    if (file.value("Format") != QJsonValue(GameFormat)) {
        return Refused("The file is not a saved game of this program.");
    }
    // What a later version writes may look different in every other respect.
    if (file.value("Version").toDouble() > GameFormatVersion) {
        return Refused("The game was saved by a later version of this program.");
    }
    if (HasRepeatedMembers(bytes, file))
        return Damaged("a name occurs twice.");

    QString problem;
    JsonMembers members(file, {}, problem);
    members.Text("Format");
    members.Number("Version", GameFormatVersion, GameFormatVersion);
    GameState state = GameReader(members.Object("Game"), problem).Read();
    members.Finish();
    if (!problem.isEmpty())
        return Damaged(problem);
    return {std::move(state), {}};
}

} // namespace ksm
