// A fresh main window over a small planet list, for one test.
#pragma once

#include "app/korvane.h"
#include "planets/planet_list_file.h"
#include "saves/game_file.h"
#include "tests/window_test.h"

#include <QComboBox>

namespace ksm {

inline GameState GameOfTwentyPlanets() {
    GameState state;
    std::vector<PlanetRecord> planets(20);
    int number = 0;
    for (PlanetRecord& planet : planets) {
        planet.Name = std::string("World ").append(std::to_string(number++));
        planet.Resources = 2;
        planet.Influence = 1;
    }
    planets[0].Name = "Quessin";
    planets[1].Specialty = Specialty::Blue;
    planets[2].Specialty = Specialty::Red;
    planets[3].Specialty = Specialty::Green;
    SetPlanets(state.Game, planets);
    return state;
}

/// The window as a player meets it; controls are found by their names. What a hand does goes to the
/// platform's window under it, where grabs, enter, leave and focus come about.
struct GameWindow {
    GameState state;
    Korvane window;

    explicit GameWindow(GameState game = GameOfTwentyPlanets(), KeptGame* keeper = nullptr)
        : state(std::move(game)), window(state, keeper) {
        window.show();
    }

    static constexpr int Single = -1; ///< a control that stands in no array
    template<typename Control = CaptionLabel>
    Control* Find(const char* name, int index = Single) const {
        auto* control =
            window.findChild<Control*>(index == Single ? QString(name) : ElementName(name, index));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    void Click(QWidget* control, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mouseClick(PlatformWindow(control), button, {}, Centre(control));
    }
    void Click(const char* name, int index = Single) const { Click(Find<QWidget>(name, index)); }
    void Choose(const char* menuItem) const { Find<QAction>(menuItem)->trigger(); }
    void Move(const char* bar, int value) const { Find<QScrollBar>(bar)->setValue(value); }
    void Move(const char* bars, int index, int value) const {
        Find<QScrollBar>(bars, index)->setValue(value);
    }
    void SetPlayers(int players) const { Move("PlayNumScroll", 11 - players); }
    void Race(int player, ksm::Race race) const {
        emit Find<QComboBox>("Race", player)->activated(static_cast<int>(race));
    }
    void Close(const char* dialog) const {
        Find<QWidget>(dialog)->close();
        DeleteClosed();
    }
    void Load(const char* file) const {
        Choose("LGame");
        Find<QLineEdit>("FileNam")->setText(file);
        Click("Loa");
        DeleteClosed();
    }

    QWidget* Row(int row) const { return Find<QWidget>("InvasionPlanet", row); }
    QWidget* Owner(int owner) const { return Find<QWidget>("InvasionPlayer", owner); }
    void Press(int row) const {
        QTest::mousePress(PlatformWindow(Row(row)), Qt::LeftButton, {}, PlaceIn(Row(row), {3, 3}));
    }
    void MoveOver(const QWidget* target) const {
        QTest::mouseMove(PlatformWindow(target), Centre(target));
    }
    void DropOn(const QWidget* target) const {
        QTest::mouseRelease(PlatformWindow(target), Qt::LeftButton, {}, Centre(target));
    }
    void Drag(int row, int owner) const {
        Press(row);
        MoveOver(Owner(owner));
        DropOn(Owner(owner));
    }
    /// Keyboard focus and shortcuts need the active window.
    void Activate() { Activate(&window); }
    static void Activate(QWidget* other) {
        QCoreApplication::processEvents(); // whatever takes the focus away
        other->activateWindow();
        const auto isActive = [&] {
            return QGuiApplication::focusWindow() == other->windowHandle() &&
                   QApplication::activeWindow() == other;
        };
        ASSERT_TRUE(QTest::qWaitFor(isActive));
    }
    /// In whichever window has the focus.
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }
    static void Undo() { Key(Qt::Key_Z, Qt::ControlModifier); }
    static void Redo() { Key(Qt::Key_Y, Qt::ControlModifier); }
    void Start() const { Click("StartGameButton"); }
};

} // namespace ksm
