// The fixed sizes of the game: how many players, planets and places there can be.
#pragma once

#include <cstdint>

namespace ksm {

/// Player slots 0..12: 0 is the unowned pool ("Neutral"), 1..10 the players, 11 and 12 stay unused.
inline constexpr int PlayerSlots = 13;
inline constexpr int MinPlayers = 2;
inline constexpr int MaxPlayers = 10;
/// Each two players hold at most one agreement.
inline constexpr int MaxAgreements = MaxPlayers * (MaxPlayers - 1) / 2;
/// Slots 0..10: the pool and the players.
inline constexpr int OwnerSlots = MaxPlayers + 1;
inline constexpr int NeutralOwner = 0;

inline constexpr int MaxPlanets = 101;
/// Marks a free place in a planet list, and the tag of a board row that shows no planet.
inline constexpr std::uint8_t NoPlanet = 255;

/// Value of `BoardPlayer` for "All planets", and index of that owner label.
inline constexpr int AllPlanets = 20;
/// Index of no owner at all.
inline constexpr int NoOwner = -1;
inline constexpr int BoardRowCount = 12;

inline constexpr int MaxSpaceDocks = 10;
inline constexpr int BaseTechnologyCost = 30;
/// A cost modifier that changes nothing; modifiers run from 0 (-15) to 30 (+15).
inline constexpr int NeutralModifier = 15;
inline constexpr int MaxModifier = 30;

} // namespace ksm
