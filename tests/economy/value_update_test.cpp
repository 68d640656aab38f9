#include "economy/value_update.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

using enum Specialty;

/// What lies on the table, put there piece by piece.
struct Table : GameState {
    Table& Planet(int owner, int resources, int influence, Specialty specialty = None,
                  const char* name = "P") {
        const auto byte = [](int figure) { return static_cast<std::uint8_t>(figure); };
        GameState::Planet(NumPlanets++) = {name, byte(resources), byte(influence), specialty,
                                           byte(owner)};
        return *this;
    }
    Table& Empty(int owner, int planets) {
        return planets == 0 ? *this : Planet(owner, 0, 0).Empty(owner, planets - 1);
    }
    Table& Home(int owner) { return Planet(owner, 0, 0, None, "Quessin"); }
    Table& Agree(int maker, int partner) {
        Cell(maker, partner) = Agreement;
        return *this;
    }
    Table& Has(bool PlayerRecord::*technology, int player = 1) {
        Player(player).*technology = true;
        return *this;
    }
    Table& Plays(int player, Race race) {
        Player(player).Race = race;
        return *this;
    }
    Table& Law(bool LawMarks::*law) {
        Laws.*law = true;
        return *this;
    }
};

// What the first and the last player then read: resources, influence and credits.
struct FigureCase {
    GameState Game;
    std::array<int, 3> First;
    std::array<int, 3> Last = {0, 0, 0};
};

const FigureCase FigureCases[]{
    // A planet without owner counts for nobody.
    {Table().Planet(0, 9, 9), {0, 0, 0}},
    // Planets add up, exactly above one byte, those with a specialty as well.
    {Table().Planet(1, 255, 250).Planet(10, 9, 6).Planet(1, 2, 14), {257, 264, 257}, {9, 6, 9}},
    {Table().Planet(1, 1, 0).Planet(1, 2, 0, Red).Planet(1, 4, 0, Blue).Planet(1, 8, 0, Green),
     {15, 0, 15}},
    // Pellam Tools: one resource a planet, which are credits too.
    {Table().Planet(1, 3, 0).Planet(1, 2, 0, Blue).Has(&PlayerRecord::PellamTools), {7, 0, 7}},
    // Enviro Comp.: one influence a space dock.
    {Table().Has(&PlayerRecord::Enviro), {0, 1, 0}},
    // Labour Union: credits follow the exchanged resources.
    {Table().Planet(1, 5, 7).Has(&PlayerRecord::Enviro).Law(&LawMarks::LabourUnion), {8, 5, 8}},
    // An agreement brings the partner's planets, under Trade Restrictions the smaller count.
    {Table().Empty(1, 4).Empty(10, 7).Agree(10, 1), {0, 0, 7}, {0, 0, 4}},
    {Table().Empty(1, 4).Empty(10, 7).Agree(1, 10).Law(&LawMarks::TradeRestrictions),
     {0, 0, 4},
     {0, 0, 4}},
    // Free Trade: five for each partner.
    {Table().Agree(1, 10).Agree(3, 1).Law(&LawMarks::FreeTrade), {0, 0, 10}, {0, 0, 5}},
    // Micro Tech.: three for each partner in the game of six, none for one beyond it.
    {Table().Agree(1, 2).Agree(6, 1).Agree(1, 7).Has(&PlayerRecord::Micro), {0, 0, 6}},
    // Orrun: every agreement in play, also between others.
    {Table().Plays(1, Race::Orrun).Agree(2, 3).Agree(9, 10).Agree(10, 2), {0, 3, 0}},
    // Altheran: planets other than home, which brings another race nothing.
    {Table().Plays(1, Race::Altheran).Home(1).Empty(1, 4), {0, 4, 0}},
    {Table().Plays(1, Race::Altheran).Home(10).Empty(1, 5), {0, 5, 0}},
};

TEST(UpdateValues, FiguresFollowTheInputs) {
    for (const FigureCase& row : FigureCases) {
        SCOPED_TRACE(&row - FigureCases);
        GameState state = row.Game;
        UpdateValues(state);
        const auto figures = [&](int player) {
            const PlayerRecord& record = state.Player(player);
            return std::array{record.Resources, record.Influence, record.Credits};
        };
        EXPECT_EQ(figures(1), row.First);
        EXPECT_EQ(figures(MaxPlayers), row.Last);
        const GameState once = state;
        UpdateValues(state);
        EXPECT_EQ(state, once) << "a second run changes nothing";
    }
}

TEST(UpdateValues, CostsFollowTheInputs) {
    GameState cheapBlue = Table().Planet(1, 35, 0, Red).Planet(1, 20, 0, Blue);
    cheapBlue.Player(1).BlueCost = 20;
    GameState modified = Table().Planet(1, 30, 0, Red);
    modified.RedModifier = 0;
    modified.BlueModifier = 18;
    modified.GreenModifier = 30;
    modified.YellowModifier = 14;
    // The costs of red, blue, green and yellow technologies.
    const std::pair<GameState, std::array<int, 4>> cases[]{
        {Table(), {30, 30, 30, 30}},
        // Each specialty discounts its colour by the planet's resources, one more by Pellam Tools.
        {Table().Planet(1, 3, 9, Red).Planet(1, 2, 9, Blue).Planet(1, 4, 9), {27, 28, 30, 30}},
        {Table().Planet(1, 3, 0, Red).Planet(1, 2, 9, Green), {27, 30, 28, 30}},
        {Table().Planet(1, 3, 0, Red).Planet(1, 2, 0, Red).Has(&PlayerRecord::PellamTools),
         {23, 30, 30, 30}},
        // A discount ends at the base cost; modifiers go on top and can make a cost negative.
        {cheapBlue, {0, 0, 30, 30}},
        {modified, {-15, 33, 45, 29}},
    };
    for (auto [state, costs] : cases) {
        UpdateValues(state);
        const PlayerRecord& p = state.Player(1);
        EXPECT_EQ((std::array<int, 4>{p.RedTech, p.BlueTech, p.GreenTech, p.YellowTech}), costs);
    }
}

TEST(UpdateValues, CountsPlanetsOfThePoolAndNothingBehindThePlayers) {
    GameState state = Table().Empty(NeutralOwner, 3).Empty(10, 2);
    UpdateValues(state);
    EXPECT_EQ(state.Player(NeutralOwner).PlanetCount, 3);
    EXPECT_EQ(state.Player(11), PlayerRecord()) << "slots behind the players are left alone";
}

} // namespace
} // namespace ksm
