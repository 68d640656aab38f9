#include "tests/random_play.h"

#include <QPlainTextEdit>

namespace ksm {

void RandomPlay::Step() {
    const bool started = game.state.Started;
    const std::pair<int, void (RandomPlay::*)()> kinds[]{
        {25, &RandomPlay::Trade},
        {15, started ? &RandomPlay::Drag : &RandomPlay::SetUp},
        {10, started ? &RandomPlay::Look : &RandomPlay::Change},
        {5, &RandomPlay::NameSomebody},
        {2, &RandomPlay::ModifyCosts},
        {2, &RandomPlay::WriteNotes},
        {41, &RandomPlay::Change}};
    int left = Pick(1, 100);
    for (const auto& [weight, act] : kinds) {
        left -= weight;
        if (left <= 0) {
            return (this->*act)();
        }
    }
}

void RandomPlay::SetUp() {
    const int kind = Pick(1, 40);
    if (kind == 1) {
        game.Start();
    } else if (kind <= 15) {
        game.Move("PlayNumScroll", Pick(0, 10));
    } else {
        game.Race(Player(), static_cast<Race>(Pick(0, RaceCount - 1)));
    }
}

void RandomPlay::Change() {
    const int kind = Pick(1, 6);
    if (kind == 1) {
        game.Choose(Any({"MenuLabour", "MenuOrlen"}));
    } else if (kind == 2) {
        game.Find<QScrollBar>("DockScroll", Player())->setValue(Pick(0, MaxSpaceDocks));
    } else {
        game.Click(Any({"Enviro", "PellamTools", "Micro"}), Player());
    }
}

void RandomPlay::Look() {
    const int owner = Pick(-1, game.state.NumPlayers);
    if (Pick(1, 2) == 1) {
        game.Click("InvasionPlayer", owner < 0 ? AllPlanets : owner);
    } else {
        game.Move("PlanetScroller", Pick(0, MaxPlanets));
    }
}

void RandomPlay::Trade() {
    const int kind = Pick(1, 12);
    if (kind == 1) {
        game.Choose(Any({"Tres", "TFree", "TRestr", "TStop"}));
    } else if (kind <= 5) {
        game.Click(Any({"AddTAbutton", "AddTAbutton", "AddTAbutton", "RemoveTAButton"}));
    } else {
        game.Click("TradePlayer", Player());
    }
}

void RandomPlay::Drag() {
    const int row = Pick(0, BoardRowCount - 1);
    const QWidget* target = nullptr;
    game.Press(row);
    for (int move = Pick(1, 3); move > 0; --move) {
        target = game.Owner(Pick(0, game.state.NumPlayers));
        game.MoveOver(row, target);
    }
    // Now and then on another planet, where nothing takes the marks of the drag away.
    game.DropOn(row, Pick(1, 5) == 1 ? game.Row(Pick(0, BoardRowCount - 1)) : target);
}

void RandomPlay::NameSomebody() {
    game.Click("PlayerName", Player());
    for (int letters = Pick(0, 5); letters > 0; --letters) {
        QTest::keyClick(game.Find<QLineEdit>("NameEntry"), Letter());
    }
    if (Pick(1, 3) == 1) {
        QTest::keyClick(game.Find<QLineEdit>("ShortNameEntry"), 'x');
    }
    if (Pick(1, 2) == 1) {
        game.Click("NameColor", Pick(1, 12));
    }
    if (Pick(1, 4) > 1) {
        game.Click("ColorOK");
    } else {
        game.Close("ColorSelectForm");
    }
    DeleteClosed();
}

void RandomPlay::ModifyCosts() {
    game.Choose("MenuTechMod");
    for (int move = Pick(0, 3); move > 0; --move) {
        game.Find<QScrollBar>("VScroll1", Pick(0, 3))->setValue(Pick(0, MaxModifier));
    }
    game.Close("TechModForm");
}

void RandomPlay::WriteNotes() {
    game.Choose("Notes");
    QTest::keyClick(game.Find<QPlainTextEdit>("Aant"), Letter());
    game.Close("NoteForm");
}

} // namespace ksm
