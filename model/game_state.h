// Every input and every derived figure of one game, as a plain value.
#pragma once

#include "model/bounds.h"
#include "model/planet_record.h"
#include "model/player_record.h"
#include "model/stroke.h"
#include "model/turn_order_row.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <span>
#include <string>

namespace ksm {

/// Cell (i, j) is -1 when player i made an agreement with player j, 0 otherwise. Row and column 0
/// are never written, and an agreement occupies one cell only: whether i and j trade takes both
/// (i, j) and (j, i).
using TradeTable = std::array<std::array<std::int16_t, OwnerSlots>, OwnerSlots>;
inline constexpr std::int16_t Agreement = -1;
inline constexpr std::int16_t NoAgreement = 0;

auto& CellOf(auto& table, int row, int column) {
    return table.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

/// What the next click on a player's trade label means.
enum class TradeMode : std::uint8_t {
    Idle = 0,
    AddFirst = 1,
    AddPartner = 2,
    RemoveFirst = 3,
    RemovePartner = 4,
    IndependenceFirst = 5,
    IndependenceSecond = 6
};

/// The check marks of the laws and of the house rule.
struct LawMarks {
    bool LabourUnion = false;
    bool EconomicIndependence = false;
    bool FreeTrade = false;
    bool TradeRestrictions = false;
    bool OrlenHouseRules = false;

    bool operator==(const LawMarks&) const = default;
};

/// The game itself.
struct Game {
    /// A game before its planet list is read: six players, every control as designed.
    Game();

    std::array<PlayerRecord, PlayerSlots> Players;
    PlanetTable Planets;
    int NumPlanets = 0; ///< loaded planets, in slots 0..NumPlanets - 1

    int NumPlayers = 6; ///< 2..10
    /// When "START" was pressed, in milliseconds since 1970 (UTC); 0 before. It tells games apart.
    std::int64_t StartTime = 0;

    TradeTable TradeAgreements{};
    ksm::TradeMode TradeMode = ksm::TradeMode::Idle;
    int TradeFirst = 0;    ///< player picked first in an add or remove selection, 0 = none yet
    int TradeCount = 0;    ///< derived: agreements in play
    std::string TradeInfo; ///< the trade panel's prompt or result; lines end with CR LF
    int IndepFirst = 0;    ///< pair under Economic Independence, 0 = none
    int IndepSecond = 0;
    /// What was drawn stays as it was drawn, whatever colours and places become.
    Strokes TradeStrokes;

    LawMarks Laws;
    // 0..30; 15 leaves the costs of that colour as they are.
    std::int16_t GreenModifier = NeutralModifier;
    std::int16_t BlueModifier = NeutralModifier;
    std::int16_t YellowModifier = NeutralModifier;
    std::int16_t RedModifier = NeutralModifier;

    /// Derived by TurnOrder; the player who moves first stands first.
    std::array<TurnOrderRow, MaxPlayers> TurnOrderRows;

    bool operator==(const Game&) const = default;

    bool Started() const { return StartTime != 0; }
    PlayerRecord& Player(int slot) { return Players.at(static_cast<std::size_t>(slot)); }
    const PlayerRecord& Player(int slot) const {
        return Players.at(static_cast<std::size_t>(slot));
    }
    PlanetRecord& Planet(int slot) { return Planets.at(static_cast<std::size_t>(slot)); }
    const PlanetRecord& Planet(int slot) const {
        return Planets.at(static_cast<std::size_t>(slot));
    }
    std::span<PlanetRecord> LoadedPlanets() {
        return std::span(Planets).first(static_cast<std::size_t>(NumPlanets));
    }
    std::span<const PlanetRecord> LoadedPlanets() const {
        return std::span(Planets).first(static_cast<std::size_t>(NumPlanets));
    }
    std::int16_t& Cell(int row, int column) { return CellOf(TradeAgreements, row, column); }
    std::int16_t Cell(int row, int column) const { return CellOf(TradeAgreements, row, column); }
};

/// How the people at the table look at the game: none of it changes the game.
struct GameView {
    int BoardPlayer = AllPlanets; ///< owner listed on the board: 0, 1..10 or `AllPlanets`
    int BoardPosition = 0;        ///< the board's scroll position
    int EditedPlayer = 0;         ///< player in the name dialog, 0 before its first use
    // The red marks of a drag; they can stay when it is over.
    int MarkedOwner = NoOwner; ///< owner label 0..10
    std::bitset<BoardRowCount> MarkedRows;

    bool operator==(const GameView&) const = default;
};

/// Everything that the windows show and no other part of it determines. A copy is a snapshot.
struct GameState {
    ksm::Game Game;
    GameView View;
    std::string NotesText; ///< UTF-8

    bool operator==(const GameState&) const = default;
};

} // namespace ksm
