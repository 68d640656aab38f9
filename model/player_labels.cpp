#include "model/player_labels.h"

#include "model/game_state.h"

namespace ksm {

namespace {

using namespace colour;

struct DesignLabels {
    const char* NameCaption = "";
    ColourPair NameColours;
    const char* ShortName = "";
    ColourPair TradeColours;
};

// How the labels look before anyone names a player. Players 3 and 7 have two different pairs.
constexpr std::array<DesignLabels, MaxPlayers> Design{{
    {"Player 1", {Orange, Black}, "PL 1", {Orange, Black}},
    {"Player 2", {White, Black}, "PL 2", {White, Black}},
    {"Player 3", {Green, Black}, "PL 3", {Yellow, Black}},
    {"Player 4", {Black, White}, "PL 4", {Black, White}},
    {"Player 5", {DarkGreen, White}, "PL 5", {DarkGreen, White}},
    {"Player 6", {Blue, White}, "PL 6", {Blue, White}},
    {"Player 7", {Teal, White}, "PL 7", {Grey, White}},
    {"Player 8", {Magenta, Black}, "PL 8", {Magenta, Black}},
    {"Player 9", {Pink, Black}, "PL 9", {Pink, Black}},
    {"Player10", {Red, White}, "PL10", {Red, White}},
}};

const DesignLabels& DesignOf(int player) { return Design.at(static_cast<std::size_t>(player - 1)); }

} // namespace

void SetDesignLabels(PlayerRecord& record, int player) {
    const DesignLabels& design = DesignOf(player);
    record.ShortName = design.ShortName;
    record.NameColours = design.NameColours;
    record.TradeColours = design.TradeColours;
}

std::string PlayerCaption(const Game& game, int player) {
    const PlayerRecord& record = game.Player(player);
    return record.Named ? record.Name : DesignOf(player).NameCaption;
}

std::string OwnerCaption(const Game& game, int player) {
    const PlayerRecord& record = game.Player(player);
    return record.Named ? record.Name : "Player " + std::to_string(player);
}

std::string SpokenName(const Game& game, int player) {
    const std::string& name = game.Player(player).Name;
    return name.empty() ? "Player " + std::to_string(player) : name;
}

std::string OwnerName(const Game& game, int owner) {
    return owner == NeutralOwner ? "Neutral" : SpokenName(game, owner);
}

void SetName(Game& game, int player, const std::string& name, const std::string& shortName) {
    PlayerRecord& record = game.Player(player);
    record.Name = name;
    record.Named = true;
    record.ShortName = shortName;
}

void SetColours(Game& game, int player, const ColourPair& colours) {
    PlayerRecord& record = game.Player(player);
    record.NameColours = colours;
    record.TradeColours = colours;
}

} // namespace ksm
