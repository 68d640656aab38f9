// What a player's labels read, and the colours they have.
#pragma once

#include "model/player_record.h"

#include <string>

namespace ksm {

struct Game;

/// Gives the record of a player 1..10 the short name and the colours of a player without a name.
void SetDesignLabels(PlayerRecord& record, int player);

/// Caption of the player's name label in the player table.
std::string PlayerCaption(const Game& game, int player);
/// Caption of the player's owner label on the planet board.
std::string OwnerCaption(const Game& game, int player);

/// What the player is called in a sentence: "Player 3" without a name.
std::string SpokenName(const Game& game, int player);
/// What an owner 0..10 is called: "Neutral" for the pool.
std::string OwnerName(const Game& game, int owner);

/// Gives the player a name, which can be empty, and the short name that comes with it. UTF-8.
void SetName(Game& game, int player, const std::string& name, const std::string& shortName);
/// Gives the same colours to both labels of the player.
void SetColours(Game& game, int player, const ColourPair& colours);

} // namespace ksm
