// A fresh main window over a small planet list, for one test.
#pragma once

#include "app/korvane.h"
#include "dialogs/load_form.h"
#include "planets/planet_list_file.h"
#include "tests/window_test.h"

#include <QAction>
#include <QScreen>

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
    TakePlanets(state, planets);
    return state;
}

/// The window as a player meets it; controls are found by their names.
struct GameWindow {
    GameState state;
    Korvane window;

    explicit GameWindow(GameState game = GameOfTwentyPlanets(), KeptGame* keeper = nullptr)
        : state(std::move(game)), window(state, keeper) {
        window.show();
    }

    template<typename Control = CaptionLabel>
    Control* Find(const char* name) const {
        auto* control = window.findChild<Control*>(QLatin1StringView(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    template<typename Control = CaptionLabel>
    Control* Find(const char* array, int index) const {
        return Find<Control>(ElementName(array, index).toLatin1().constData());
    }
    std::string Caption(const char* array, int index) const {
        return Find(array, index)->Caption().toStdString();
    }
    QColor Back(const char* array, int index) const {
        return Find(array, index)->palette().color(QPalette::Window);
    }
    /// What is on the screen: a change that nobody had painted is not.
    QImage OnScreen() const {
        QCoreApplication::processEvents();
        return window.screen()->grabWindow(window.winId()).toImage();
    }

    void Click(QWidget* control) const { QTest::mouseClick(control, Qt::LeftButton); }
    void Click(const char* name) const { Click(Find<QWidget>(name)); }
    void Click(const char* array, int index) const { Click(Find<QWidget>(array, index)); }
    void Choose(const char* menuItem) const { Find<QAction>(menuItem)->trigger(); }
    void SetPlayerCount(int players) const {
        Find<QScrollBar>("PlayNumScroll")->setValue(11 - players);
    }
    /// Keyboard focus and shortcuts need the active window.
    void Activate() {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void Start() const { Click("StartGameButton"); }
    void Agree(int one, int other) const {
        Click("AddTAbutton");
        Click("TradePlayer", one);
        Click("TradePlayer", other);
    }
    /// Puts a game in force the way the load dialog does.
    void Load(const GameState& loaded) const {
        Choose("LGame");
        auto* form = Find<LoadForm>("LoadForm");
        emit form->GameLoaded(loaded);
        form->close();
        DeleteClosed();
    }

    // A drag by mouse, of the planet in a row of the board.
    CaptionLabel* Row(int row) const { return Find("InvasionPlanet", row); }
    /// The middle of a control, as a place in the dragged label.
    QPoint Over(int row, const QWidget* target) const {
        return Row(row)->mapFromGlobal(target->mapToGlobal(target->rect().center()));
    }
    void Press(int row) const { QTest::mousePress(Row(row), Qt::LeftButton, {}, QPoint(3, 3)); }
    void MoveOver(int row, int owner) const {
        const QPoint place = Over(row, Find("InvasionPlayer", owner));
        // With the button held, as the platform reports it.
        QMouseEvent move(QEvent::MouseMove, place, Row(row)->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Row(row), &move);
    }
    void DropOn(int row, const QWidget* target) const {
        QTest::mouseRelease(Row(row), Qt::LeftButton, {}, Over(row, target));
    }
    void Drag(int row, int owner) const {
        Press(row);
        MoveOver(row, owner);
        DropOn(row, Find("InvasionPlayer", owner));
    }
};

} // namespace ksm
