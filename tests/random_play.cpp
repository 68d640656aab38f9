#include "tests/random_play.h"

#include "dialogs/note_form.h"

#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>

namespace ksm {

void RandomPlay::Step() {
    const int kind = Pick(1, 100);
    if (kind <= 25) {
        TradeSomething();
    } else if (kind <= 40 && !game.state.Started) {
        SetUpSomething();
    } else if (kind <= 60 && game.state.Started) {
        DragSomething();
    } else if (kind <= 65) {
        NameSomebody();
    } else if (kind <= 67) {
        ModifyCosts();
    } else if (kind <= 69) {
        WriteNotes();
    } else {
        PlaySomething();
    }
}

void RandomPlay::SetUpSomething() {
    const int kind = Pick(1, 40);
    if (kind == 1) {
        game.Start();
    } else if (kind <= 15) {
        game.Find<QScrollBar>("PlayNumScroll")->setValue(Pick(0, 10));
    } else {
        emit game.Find<QComboBox>("Race", Player())->activated(Pick(0, RaceCount - 1));
    }
}

void RandomPlay::PlaySomething() {
    constexpr std::array marks{"Enviro", "PellamTools", "Micro"};
    constexpr std::array laws{"MenuLabour", "MenuOrlen"};
    switch (Pick(1, 6)) {
    case 1:
        game.Choose(laws.at(static_cast<std::size_t>(Pick(0, 1))));
        break;
    case 2:
        game.Find<QScrollBar>("DockScroll", Player())->setValue(Pick(0, MaxSpaceDocks));
        break;
    case 3:
        if (game.state.Started) {
            const int owner = Pick(0, game.state.NumPlayers + 1);
            game.Click("InvasionPlayer", owner > game.state.NumPlayers ? AllPlanets : owner);
        }
        break;
    case 4:
        if (game.state.Started) {
            game.Find<QScrollBar>("PlanetScroller")->setValue(Pick(0, MaxPlanets));
        }
        break;
    default:
        game.Click(marks.at(static_cast<std::size_t>(Pick(0, 2))), Player());
    }
}

void RandomPlay::TradeSomething() {
    constexpr std::array laws{"Tres", "TFree", "TRestr", "TStop"};
    switch (Pick(1, 12)) {
    case 1:
        game.Choose(laws.at(static_cast<std::size_t>(Pick(0, 3))));
        break;
    case 2:
    case 3:
    case 4:
        game.Click("AddTAbutton");
        break;
    case 5:
        game.Click("RemoveTAButton");
        break;
    default:
        game.Click("TradePlayer", Player());
    }
}

namespace {

/// The middle of a control, as a place in the dragged label.
QPoint Over(const QWidget* row, const QWidget* target) {
    return row->mapFromGlobal(target->mapToGlobal(target->rect().center()));
}

} // namespace

// With the button held, as the platform reports it.
void RandomPlay::MoveOver(QWidget* row, const QWidget* target) {
    const QPoint place = Over(row, target);
    QMouseEvent move(QEvent::MouseMove, place, row->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(row, &move);
}

void RandomPlay::Drag(int row, int owner) {
    auto* label = game.Find<QWidget>("InvasionPlanet", row);
    const auto* target = game.Find<QWidget>("InvasionPlayer", owner);
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(3, 3));
    MoveOver(label, target);
    QTest::mouseRelease(label, Qt::LeftButton, {}, Over(label, target));
}

void RandomPlay::DragSomething() {
    auto* row = game.Find<QWidget>("InvasionPlanet", Pick(0, BoardRowCount - 1));
    const auto owner = [&] {
        return game.Find<QWidget>("InvasionPlayer", Pick(0, game.state.NumPlayers));
    };
    QTest::mousePress(row, Qt::LeftButton, {}, QPoint(3, 3));
    const QWidget* target = owner();
    MoveOver(row, target);
    for (int move = Pick(0, 2); move > 0; --move) {
        target = owner();
        MoveOver(row, target);
    }
    // Now and then on another planet, where nothing takes the marks of the drag away.
    if (Pick(1, 5) == 1) {
        target = game.Find<QWidget>("InvasionPlanet", Pick(0, BoardRowCount - 1));
    }
    QTest::mouseRelease(row, Qt::LeftButton, {}, Over(row, target));
}

void RandomPlay::NameSomebody() {
    game.Click("PlayerName", Player());
    for (int letters = Pick(0, 5); letters > 0; --letters) {
        QTest::keyClick(game.Find<QLineEdit>("NameEntry"), static_cast<char>('a' + Pick(0, 25)));
    }
    if (Pick(1, 3) == 1) {
        QTest::keyClick(game.Find<QLineEdit>("ShortNameEntry"), 'x');
    }
    if (Pick(1, 2) == 1) {
        game.Click("NameColor", Pick(1, 12));
    }
    if (Pick(1, 4) == 1) {
        game.Find<QWidget>("ColorSelectForm")->close();
    } else {
        game.Click("ColorOK");
    }
    DeleteClosed();
}

void RandomPlay::ModifyCosts() {
    game.Choose("MenuTechMod");
    for (int move = Pick(0, 3); move > 0; --move) {
        game.Find<QScrollBar>("VScroll1", Pick(0, 3))->setValue(Pick(0, MaxModifier));
    }
    game.Find<QWidget>("TechModForm")->close();
    DeleteClosed();
}

void RandomPlay::WriteNotes() {
    game.Choose("Notes");
    QTest::keyClick(game.Find<QPlainTextEdit>("Aant"), static_cast<char>('a' + Pick(0, 25)));
    game.Find<QWidget>("NoteForm")->close();
    DeleteClosed();
}

} // namespace ksm
