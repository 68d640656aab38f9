#include "sample_game.h"

#include "planets/planet_list_file.h"

namespace ksm {

using namespace std::string_literals;

GameState SampleGame() {
    GameState game;
    std::string list;
    for (int i = 0; i < 20; ++i)
        list += "Planet " + std::to_string(i) + "," + "2,1,blue\r\n";
    TakePlanets(game,
                ReadPlanetList(list + "Zo\xC3\xAB \"the\\far\"\n,3,1,green\r'\r,0,4,r").Planets);
    game.Planet(0).Owner = 3;
    game.Planet(7).Owner = 10;
    game.Player(NeutralOwner).PlanetList = EmptyPlanetList();
    // What transfers leave behind: planets that were lost, and one twice.
    game.Player(3).PlanetList[0] = 0;
    game.Player(3).PlanetList[1] = 7;
    game.Player(3).PlanetList[2] = 0;
    game.Player(NeutralOwner).PlanetList[0] = 21;

    game.Player(3).Name = "\xEF\xBB\xBF<b>Ren\xC3\xA9</b> \xF0\x9F\x9A\x80";
    game.Player(3).RedCost = 40;
    game.Player(3).BlueCost = game.Player(3).YellowCost = game.Player(3).GreenCost = 20;
    PlayerControls& third = game.Controls[3];
    third.Race = Race::IthVeran;
    third.Named = true;
    third.ShortName = "";
    third.NameColours = third.TradeColours = {{1, 2, 254}, {171, 205, 239}};
    third.SpaceDocks = 10;
    third.Enviro = third.PellamToolsEnabled = third.MicroEnabled = true;
    third.PellamTools = true;
    game.Controls[5].MicroEnabled = game.Controls[5].Micro = true;
    game.Controls[5].Race = Race::Orrun;
    game.Controls[10].SpaceDocks = 0;

    game.NumPlayers = 4;
    for (int player = 1; player <= MaxPlayers; ++player)
        game.Controls[player].TradeRing = player <= 4 ? 4 : 9 + player % 2;
    game.Controls[10].TradeRing = 10;
    game.Started = true;
    game.Cell(3, 5) = game.Cell(10, 1) = Agreement;
    game.TradeMode = TradeMode::AddPartner;
    game.TradeFirst = 3;
    game.TradeInfo = "x makes Trade Agreement with...\r\n";
    game.IndepFirst = 2;
    game.IndepSecond = 2;
    game.Laws = {.LabourUnion = true,
                 .EconomicIndependence = true,
                 .FreeTrade = true,
                 .TradeRestrictions = true,
                 .OrlenHouseRules = true};
    game.GreenModifier = 0;
    game.BlueModifier = 16;
    game.YellowModifier = 14;
    game.RedModifier = MaxModifier;
    game.BoardPlayer = 3;
    game.BoardPosition = 10;
    game.EditedPlayer = 5;
    game.NotesText = "line 1\n\tline \"2\"\x01 and nul \0 here \xC2\x85"s;
    return game;
}

} // namespace ksm
