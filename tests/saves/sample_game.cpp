#include "tests/saves/sample_game.h"

#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "planets/planet_list_file.h"
#include "trade/trade_diagram.h"

namespace ksm {

using namespace std::string_literals;

GameState SampleGame() {
    GameState game;
    std::string list;
    for (int i = 0; i < 20; ++i) {
        list += "Planet " + std::to_string(i) + "," + "2,1,blue\r\n";
    }
    TakePlanets(game,
                ReadPlanetList(list + "Zo\xC3\xAB \"the\\far\"\n,3,1,green\r'\r,0,4,r").Planets);
    for (int planet = 0; planet < 15; ++planet) {
        game.Planet(planet).Owner = 3;
    }
    game.Planet(7).Owner = 10;
    game.Player(NeutralOwner).PlanetList = EmptyPlanetList();
    // What transfers leave behind: planets that were lost, and one twice.
    game.Player(3).PlanetList[0] = 0;
    game.Player(3).PlanetList[1] = 7;
    game.Player(3).PlanetList[2] = 0;
    game.Player(NeutralOwner).PlanetList[0] = 21;

    PlayerRecord& third = game.Player(3);
    third.Name = "<b>Ren\xC3\xA9\xEF\xBB\xBF</b> \xF0\x9F\x9A\x80";
    third.Race = Race::IthVeran;
    TakeCostsOfRace(third);
    third.Named = true;
    third.ShortName = "";
    third.NameColours = third.TradeColours = {{1, 2, 254}, {171, 205, 239}};
    third.SpaceDocks = 10;
    third.Enviro = third.PellamToolsEnabled = third.MicroEnabled = true;
    third.PellamTools = true;
    game.Player(5).MicroEnabled = game.Player(5).Micro = true;
    game.Player(5).Race = Race::Orrun;
    game.Player(10).SpaceDocks = 0;

    game.NumPlayers = 4;
    for (int player = 1; player <= MaxPlayers; ++player) {
        game.Player(player).TradeRing = player <= 4 ? 4 : 9 + player % 2;
    }
    game.Player(10).TradeRing = 10;
    game.Started = true;
    game.Cell(3, 5) = game.Cell(10, 1) = Agreement;
    game.TradeMode = TradeMode::AddPartner;
    game.TradeFirst = 3;
    game.TradeInfo = "x makes Trade Agreement with...\r\n";
    game.IndepFirst = 2;
    game.IndepSecond = 2;
    RedrawTradeDiagram(game);
    game.Laws = {.LabourUnion = true,
                 .EconomicIndependence = true,
                 .FreeTrade = true,
                 .TradeRestrictions = true,
                 .OrlenHouseRules = true};
    game.GreenModifier = 0;
    game.BlueModifier = 16;
    game.YellowModifier = 14;
    game.RedModifier = MaxModifier;
    game.View.BoardPlayer = 3;
    game.View.BoardPosition = 2;
    game.View.EditedPlayer = 5;
    game.NotesText = "line 1\n\tline \"2\"\x01 and nul \0 here \xC2\x85"s;
    UpdateValues(game);
    TurnOrder(game);
    return game;
}

} // namespace ksm
