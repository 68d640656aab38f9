// What a saved game holds, member by member: one description, by which games are written and read.
#pragma once

#include "model/game_state.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <vector>

namespace ksm {

// A member is handed to `members`, which is a JsonWriter with constant values or a JsonReader with
// values to fill. Where a list is kept in another form than it is saved in, it is converted here,
// back only in reading.

// How enumerations are spelled, in their order.
inline constexpr std::array<std::string_view, SpecialtyCount> SpecialtyWords{"none", "blue",
                                                                             "green", "red"};
inline constexpr std::array<std::string_view, 7> TradeModeWords{
    "idle",           "add first",          "add partner",        "remove first",
    "remove partner", "independence first", "independence second"};
inline constexpr auto RaceWords = [] {
    std::array<std::string_view, Races.size()> words;
    std::ranges::transform(Races, words.begin(), &RaceTraits::Caption);
    return words;
}();

/// Milliseconds since 1970 that JSON can hold.
inline constexpr std::int64_t LatestTime = (std::int64_t{1} << 53) - 1;

struct SavedAgreement {
    int Maker = 0;
    int Partner = 0;
};

inline std::vector<SavedAgreement> Agreements(const Game& game) {
    std::vector<SavedAgreement> agreements;
    for (int maker = 1; maker <= MaxPlayers; ++maker) {
        for (int partner = 1; partner <= MaxPlayers; ++partner) {
            if (game.Cell(maker, partner) != NoAgreement) {
                agreements.push_back({maker, partner});
            }
        }
    }
    return agreements;
}

struct GameMembers {
    template<typename Members, typename State>
    static void Describe(Members& members, State& state) {
        members.Number("NumPlayers", state.Game.NumPlayers, MinPlayers, MaxPlayers);
        members.Number("StartTime", state.Game.StartTime, 0, LatestTime);
        DescribePlanets(members, state);
        DescribePlanetList(members, "NeutralPlanetList", state.Game.Player(NeutralOwner),
                           state.Game.NumPlanets);
        DescribePlayers(members, state);
        DescribeTrade(members, state);
        members.Object("Laws", state.Game.Laws, [](auto& laws, auto& marks) {
            laws.Bool("LabourUnion", marks.LabourUnion);
            laws.Bool("EconomicIndependence", marks.EconomicIndependence);
            laws.Bool("FreeTrade", marks.FreeTrade);
            laws.Bool("TradeRestrictions", marks.TradeRestrictions);
            laws.Bool("OrlenHouseRules", marks.OrlenHouseRules);
        });
        members.Number("GreenModifier", state.Game.GreenModifier, 0, MaxModifier);
        members.Number("BlueModifier", state.Game.BlueModifier, 0, MaxModifier);
        members.Number("YellowModifier", state.Game.YellowModifier, 0, MaxModifier);
        members.Number("RedModifier", state.Game.RedModifier, 0, MaxModifier);
        // The marks of a drag are not worth keeping.
        members.Number("BoardPlayer", state.View.BoardPlayer, 0, AllPlanets);
        members.Number("BoardPosition", state.View.BoardPosition, 0, MaxPlanets - BoardRowCount);
        members.Number("EditedPlayer", state.View.EditedPlayer, 0, MaxPlayers);
        members.Text("NotesText", state.NotesText);
    }

private:
    template<typename Members, typename State>
    static void DescribePlanets(Members& members, State& state) {
        const auto loaded = state.Game.LoadedPlanets();
        std::vector<PlanetRecord> planets(loaded.begin(), loaded.end());
        members.List("Planets", planets, 1, MaxPlanets, [](auto& planet, auto& record) {
            constexpr int LargestByte = std::numeric_limits<std::uint8_t>::max();
            planet.Text("Name", record.Name);
            planet.Number("Resources", record.Resources, 0, LargestByte);
            planet.Number("Influence", record.Influence, 0, LargestByte);
            planet.Enum("Specialty", record.Specialty, SpecialtyWords);
            planet.Number("Owner", record.Owner, NeutralOwner, MaxPlayers);
        });
        if constexpr (Members::Reading) {
            state.Game.NumPlanets = static_cast<int>(planets.size());
            std::ranges::move(planets, state.Game.Planets.begin());
        }
    }

    // A list may hold planets that its owner lost, and one planet twice: transfers leave that
    // behind.
    template<typename Members, typename Record>
    static void DescribePlanetList(Members& members, const char* name, Record& record,
                                   int planets) {
        // Without the free numbered at its end.
        std::vector<std::uint8_t> list(record.PlanetList.begin(),
                                       std::ranges::find(record.PlanetList, NoPlanet));
        members.Numbers(name, list, MaxPlanets, 0, planets - 1);
        if constexpr (Members::Reading) {
            std::ranges::copy(list, record.PlanetList.begin());
        }
    }

    // The first player has number 1 and stands at place 0 of the list. The costs follow from the
    // race.
    template<typename Members, typename State>
    static void DescribePlayers(Members& members, State& state) {
        const auto numbered = std::span(state.Game.Players).subspan(1, MaxPlayers);
        std::vector<PlayerRecord> players(numbered.begin(), numbered.end());
        members.List("Players", players, MaxPlayers, MaxPlayers, [&](auto& player, auto& record) {
            player.Text("Name", record.Name);
            player.Bool("Named", record.Named);
            player.Text("ShortName", record.ShortName);
            player.Object("NameColours", record.NameColours, DescribeColours);
            player.Object("TradeColours", record.TradeColours, DescribeColours);
            player.Enum("Race", record.Race, RaceWords);
            player.Number("SpaceDocks", record.SpaceDocks, 0, MaxSpaceDocks);
            player.Bool("Enviro", record.Enviro);
            player.Bool("PellamTools", record.PellamTools);
            player.Bool("PellamToolsEnabled", record.PellamToolsEnabled);
            player.Bool("Micro", record.Micro);
            player.Bool("MicroEnabled", record.MicroEnabled);
            DescribePlanetList(player, "PlanetList", record, state.Game.NumPlanets);
            player.Number("TradeRing", record.TradeRing, MinPlayers, MaxPlayers);
        });
        if constexpr (Members::Reading) {
            std::ranges::move(players, numbered.begin());
        }
    }

    static constexpr auto DescribeColours = [](auto& pair, auto& colours) {
        pair.Colour("Back", colours.Back);
        pair.Colour("Text", colours.Text);
    };

    template<typename Members, typename State>
    static void DescribeTrade(Members& members, State& state) {
        std::vector<SavedAgreement> agreements = Agreements(state.Game);
        members.List("TradeAgreements", agreements, 0, MaxAgreements, [](auto& pair, auto& saved) {
            pair.Number("Maker", saved.Maker, 1, MaxPlayers);
            pair.Number("Partner", saved.Partner, 1, MaxPlayers);
        });
        if constexpr (Members::Reading) {
            for (const SavedAgreement& saved : agreements) {
                state.Game.Cell(saved.Maker, saved.Partner) = Agreement;
            }
        }
        members.Enum("TradeMode", state.Game.TradeMode, TradeModeWords);
        members.Number("TradeFirst", state.Game.TradeFirst, 0, MaxPlayers);
        members.Text("TradeInfo", state.Game.TradeInfo);
        members.Number("IndepFirst", state.Game.IndepFirst, 0, MaxPlayers);
        members.Number("IndepSecond", state.Game.IndepSecond, 0, MaxPlayers);
        members.List("TradeStrokes", state.Game.TradeStrokes, 0, MaxStrokes,
                     [](auto& stroke, auto& drawn) {
                         stroke.Point("From", drawn.From, 300, 180);
                         stroke.Point("To", drawn.To, 300, 180);
                         stroke.Colour("Colour", drawn.Colour);
                         stroke.Number("Width", drawn.Width, 1, 6);
                     });
    }
};

} // namespace ksm
