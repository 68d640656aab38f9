#include "model/game_state.h"

namespace ksm {

namespace {

constexpr Colour Orange{255, 128, 0};
constexpr Colour Yellow{255, 255, 0};
constexpr Colour Green{0, 255, 0};
constexpr Colour DarkGreen{0, 128, 0};
constexpr Colour Blue{0, 0, 255};
constexpr Colour Teal{0, 128, 128};
constexpr Colour Grey{128, 128, 128};
constexpr Colour Magenta{255, 0, 255};
constexpr Colour Pink{255, 128, 128};
constexpr Colour Red{255, 0, 0};

struct DesignLabels {
    const char* NameCaption;
    ColourPair NameColours;
    const char* ShortName;
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

const DesignLabels& DesignOf(int player) {
    return Design.at(static_cast<std::size_t>(player - 1));
}

} // namespace

GameState::GameState() : TradeInfo("\r\nPress Add to make a Trade Agreement") {
    for (int player = 1; player <= MaxPlayers; ++player) {
        PlayerControls& controls = Controls[player];
        controls.ShortName = DesignOf(player).ShortName;
        controls.NameColours = DesignOf(player).NameColours;
        controls.TradeColours = DesignOf(player).TradeColours;
        controls.TradeRing = player <= NumPlayers ? NumPlayers : MaxPlayers;
    }
}

std::int16_t& GameState::Cell(int row, int column) {
    return TradeAgreements.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

std::int16_t GameState::Cell(int row, int column) const {
    return TradeAgreements.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

std::string PlayerCaption(const GameState& state, int player) {
    return state.Controls[player].Named ? state.Player(player).Name : DesignOf(player).NameCaption;
}

std::string OwnerCaption(const GameState& state, int player) {
    return state.Controls[player].Named ? state.Player(player).Name
                                        : "Player " + std::to_string(player);
}

} // namespace ksm
