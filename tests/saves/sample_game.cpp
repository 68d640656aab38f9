#include "tests/saves/sample_game.h"

#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "planets/planet_list_file.h"
#include "trade/trade_diagram.h"

#include <algorithm>

namespace ksm {

using namespace std::string_literals;

GameState SampleGame() {
    GameState game;
    std::string list = "Zo\xC3\xAB \"the\\far\"\n,3,1,green\r'\r,0,4,r\rQuessin,255,0\r";
    for (int i = 0; i < 15; ++i) {
        list.append("P").append(std::to_string(i)).append(",2,1,blue\r");
    }
    TakePlanets(game, ReadPlanetList(list).Planets);
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        planet.Owner = 3;
    }
    game.Planet(0).Owner = NeutralOwner;
    game.Planet(7).Owner = 10;
    // What transfers leave behind: planets that were lost, and one twice.
    std::ranges::copy(std::array{0, 7, 0}, game.Player(3).PlanetList.begin());
    game.Player(NeutralOwner).PlanetList = EmptyPlanetList();
    game.Player(NeutralOwner).PlanetList[0] = 17;

    SetPlayerCount(game, 9);
    SetPlayerCount(game, 4);
    game.Started = true;
    for (int race = 0; race < RaceCount; ++race) {
        game.Player(race + 2).Race = static_cast<Race>(race);
        TakeCostsOfRace(game.Player(race + 2));
    }
    PlayerRecord& third = game.Player(3);
    third.Name = "<b>Ren\xC3\xA9\xEF\xBB\xBF</b> \xF0\x9F\x9A\x80";
    third.Named = true;
    third.ShortName = "";
    third.NameColours = {{1, 2, 254}, {171, 205, 239}};
    third.TradeColours = {{3, 4, 5}, {6, 7, 8}};
    third.SpaceDocks = 10;
    third.Enviro = third.PellamToolsEnabled = third.MicroEnabled = true;
    game.Player(4).PellamTools = true;
    game.Player(4).PellamToolsEnabled = game.Player(4).MicroEnabled = true;
    game.Player(5).MicroEnabled = game.Player(5).Micro = true;
    game.Player(10).SpaceDocks = 0;

    game.Cell(3, 5) = game.Cell(4, 10) = game.Cell(10, 1) = Agreement;
    game.TradeMode = TradeMode::AddPartner;
    game.TradeFirst = 3;
    game.TradeInfo = "x makes Trade Agreement with...\r\n";
    game.IndepFirst = 5;
    game.IndepSecond = 9;
    RedrawTradeDiagram(game);
    game.Laws = {true, true, true, true, true};
    game.GreenModifier = 0;
    game.BlueModifier = 16;
    game.YellowModifier = 14;
    game.RedModifier = MaxModifier;
    game.View.BoardPlayer = 3;
    game.View.BoardPosition = 4;
    game.View.EditedPlayer = 5;
    game.NotesText = "line 1\n\tline \"2\"\x01 and nul \0 here \xC2\x85"s;
    UpdateValues(game);
    TurnOrder(game);
    return game;
}

} // namespace ksm
