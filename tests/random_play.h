// Plays at random on a main window, through its controls, as a person would.
#pragma once

#include "tests/game_window.h"

#include <QPlainTextEdit>

#include <random>

namespace ksm {

class RandomPlay {
public:
    RandomPlay(GameWindow& played, unsigned seed) : game(played), random(seed) {}

    /// Does one thing that a person can do just then.
    void Step() {
        const bool started = game.state.Game.Started();
        const int kind = Pick(1, 100);
        kind <= 2    ? WriteNotes()
        : kind <= 4  ? ModifyCosts()
        : kind <= 9  ? NameSomebody()
        : kind <= 12 ? game.Choose(Any(Laws))
        : kind <= 19 ? game.Click(Any(TradeButtons))
        : kind <= 29 ? game.Move("DockScroll", Player(), Pick(0, MaxSpaceDocks))
        : kind <= 75 ? game.Click(Any(OfAPlayer), Player())
        : !started   ? SetUp()
        : kind <= 90 ? Drag()
                     : Look();
    }

private:
    using Names = std::vector<const char*>;
    // What is named twice is done twice as often.
    const Names Laws{"MenuLabour", "MenuOrlen", "Tres", "TFree", "TRestr", "TStop"};
    const Names TradeButtons{"AddTAbutton", "AddTAbutton", "AddTAbutton", "RemoveTAButton"};
    const Names OfAPlayer{"Enviro", "PellamTools", "Micro", "TradePlayer", "TradePlayer"};
    const Names NameEntries{"NameEntry", "NameEntry", "ShortNameEntry"};

    void SetUp() {
        const int kind = Pick(1, 60);
        kind == 1    ? game.Start()
        : kind <= 20 ? game.Move("PlayNumScroll", Pick(0, 10))
                     : game.Race(Player(), static_cast<Race>(Pick(0, RaceCount - 1)));
    }
    void Look() {
        const int owner = Pick(-1, 2 * game.state.Game.NumPlayers);
        owner > game.state.Game.NumPlayers
            ? game.Move("PlanetScroller", Pick(0, MaxPlanets))
            : game.Click("InvasionPlayer", owner < 0 ? AllPlanets : owner);
    }
    void Drag() {
        const QWidget* target = nullptr;
        game.Press(Pick(0, BoardRowCount - 1));
        for (int move = Pick(1, 3); move > 0; --move) {
            target = game.Owner(Pick(0, game.state.Game.NumPlayers));
            game.MoveOver(target);
        }
        // Now and then on another planet, where nothing takes the marks of the drag away.
        game.DropOn(Pick(1, 5) == 1 ? game.Row(Pick(0, BoardRowCount - 1)) : target);
    }
    void NameSomebody() {
        game.Click("PlayerName", Player());
        const char* entry = Any(NameEntries);
        for (int letters = Pick(0, 5); letters > 0; --letters) {
            QTest::keyClick(game.Find<QLineEdit>(entry), Letter());
        }
        Pick(1, 2) == 1 ? game.Click("NameColor", Pick(1, 12)) : void();
        Pick(1, 4) > 1 ? game.Click("ColorOK") : game.Close("ColorSelectForm");
        DeleteClosed();
    }
    void ModifyCosts() {
        game.Choose("MenuTechMod");
        for (int move = Pick(0, 3); move > 0; --move) {
            game.Move("VScroll1", Pick(0, 3), Pick(0, MaxModifier));
        }
        game.Close("TechModForm");
    }
    void WriteNotes() {
        game.Choose("Notes");
        QTest::keyClick(game.Find<QPlainTextEdit>("Aant"), Letter());
        game.Close("NoteForm");
    }

    int Pick(int least, int most) { return std::uniform_int_distribution(least, most)(random); }
    const char* Any(const Names& names) {
        return names.at(static_cast<std::size_t>(Pick(0, static_cast<int>(names.size()) - 1)));
    }
    int Player() { return Pick(1, game.state.Game.NumPlayers); }
    char Letter() { return static_cast<char>(Pick('a', 'z')); }

    GameWindow& game;
    std::mt19937 random;
};

} // namespace ksm
