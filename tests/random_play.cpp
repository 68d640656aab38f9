#include "tests/random_play.h"

#include <QPlainTextEdit>

#include <functional>

namespace ksm {

namespace {

using Names = std::vector<const char*>;

// What is named twice is done twice as often.
const Names Laws{"MenuLabour", "MenuOrlen", "Tres", "TFree", "TRestr", "TStop"};
const Names TradeButtons{"AddTAbutton", "AddTAbutton", "AddTAbutton", "RemoveTAButton"};
const Names OfAPlayer{"Enviro", "PellamTools", "Micro", "TradePlayer", "TradePlayer"};
const Names NameEntries{"NameEntry", "NameEntry", "ShortNameEntry"};

} // namespace

void RandomPlay::Step() {
    const bool started = game.state.Game.Started();
    const std::pair<int, std::function<void()>> kinds[]{
        {3, [&] { game.Choose(Any(Laws)); }},
        {7, [&] { game.Click(Any(TradeButtons)); }},
        {46, [&] { game.Click(Any(OfAPlayer), Player()); }},
        {10, [&] { game.Move("DockScroll", Player(), Pick(0, MaxSpaceDocks)); }},
        {15, [&] { started ? Drag() : SetUp(); }},
        {10, [&] { started ? Look() : SetUp(); }},
        {5, [&] { NameSomebody(); }},
        {2, [&] { ModifyCosts(); }},
        {2, [&] { WriteNotes(); }}};
    int left = Pick(1, 100);
    for (const auto& [weight, act] : kinds) {
        left -= weight;
        if (left <= 0) {
            return act();
        }
    }
}

void RandomPlay::SetUp() {
    const int kind = Pick(1, 60);
    kind == 1    ? game.Start()
    : kind <= 20 ? game.Move("PlayNumScroll", Pick(0, 10))
                 : game.Race(Player(), static_cast<Race>(Pick(0, RaceCount - 1)));
}

void RandomPlay::Look() {
    const int owner = Pick(-1, 2 * game.state.Game.NumPlayers);
    owner > game.state.Game.NumPlayers
        ? game.Move("PlanetScroller", Pick(0, MaxPlanets))
        : game.Click("InvasionPlayer", owner < 0 ? AllPlanets : owner);
}

void RandomPlay::Drag() {
    const int row = Pick(0, BoardRowCount - 1);
    const QWidget* target = nullptr;
    game.Press(row);
    for (int move = Pick(1, 3); move > 0; --move) {
        target = game.Owner(Pick(0, game.state.Game.NumPlayers));
        game.MoveOver(target);
    }
    // Now and then on another planet, where nothing takes the marks of the drag away.
    game.DropOn(Pick(1, 5) == 1 ? game.Row(Pick(0, BoardRowCount - 1)) : target);
}

void RandomPlay::NameSomebody() {
    game.Click("PlayerName", Player());
    const char* entry = Any(NameEntries);
    for (int letters = Pick(0, 5); letters > 0; --letters) {
        QTest::keyClick(game.Find<QLineEdit>(entry), Letter());
    }
    if (Pick(1, 2) == 1) {
        game.Click("NameColor", Pick(1, 12));
    }
    Pick(1, 4) > 1 ? game.Click("ColorOK") : game.Close("ColorSelectForm");
    DeleteClosed();
}

void RandomPlay::ModifyCosts() {
    game.Choose("MenuTechMod");
    for (int move = Pick(0, 3); move > 0; --move) {
        game.Move("VScroll1", Pick(0, 3), Pick(0, MaxModifier));
    }
    game.Close("TechModForm");
}

void RandomPlay::WriteNotes() {
    game.Choose("Notes");
    QTest::keyClick(game.Find<QPlainTextEdit>("Aant"), Letter());
    game.Close("NoteForm");
}

} // namespace ksm
