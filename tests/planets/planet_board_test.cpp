#include "economy/value_update.h"
#include "tests/game_window.h"

#include <QMenu>
#include <QToolTip>

#include <functional>

namespace ksm {
namespace {

/// A game in play. Planets 4 to 18 belong to player 2, planet 19 to player 6, the others to nobody.
GameState InPlay() {
    GameState state = GameOfTwentyPlanets();
    state.Game.StartTime = 1;
    for (int planet = 4; planet < 20; ++planet) {
        state.Game.Planet(planet).Owner = planet == 19 ? 6 : 2;
    }
    UpdateValues(state.Game);
    return state;
}

/// The colours of the pool, players 1 to 6, "All planets" and the first two rows.
std::string Colours(const GameWindow& board) {
    std::string letters;
    const auto add = [&](const QWidget* label) {
        const QColor colour = label->palette().color(QPalette::Window);
        letters += colour == QColor(Qt::red) ? 'R' : colour == QColor(Qt::yellow) ? 'Y' : '.';
    };
    for (const int owner : {0, 1, 2, 3, 4, 5, 6, AllPlanets}) {
        add(board.Owner(owner));
    }
    add(board.Row(0));
    add(board.Row(1));
    return letters;
}

// What is dragged by mouse or carried by keyboard, and what comes between.
TEST(PlanetBoard, OnlyWhatIsStillHeldCanBeSetDown) {
    const struct {
        const char* what;
        std::function<void(GameWindow&)> happens;
        bool endsDrag, endsCarrying;
    } rows[]{
        {"nothing", [](GameWindow&) {}, false, false},
        {"Escape", [](GameWindow& board) { board.Key(Qt::Key_Escape); }, true, true},
        {"the wheel", [](GameWindow& board) { Turn(board.Row(3), -1); }, false, true},
        {"a menu", [](GameWindow& board) { board.Find<QMenu>("MenuLaws")->popup({}); }, true, true},
        {"a tip", [](GameWindow& board) { QToolTip::showText({}, "tip", board.Row(0)); }, false,
         false},
        {"a release", [](GameWindow& board) { QTest::mouseClick(board.Owner(5), Qt::LeftButton); },
         true, true},
        {"the scroll bar", [](GameWindow& board) { board.Move("PlanetScroller", 3); }, false, true},
        {"the focus", [](GameWindow& board) { board.Find("PlayerName(1)")->setFocus(); }, false,
         true}};
    for (const auto& [what, happens, endsDrag, endsCarrying] : rows) {
        SCOPED_TRACE(what);
        for (const bool byMouse : {true, false}) {
            const bool ends = byMouse ? endsDrag : endsCarrying;
            GameWindow board(InPlay());
            board.Activate();
            board.Row(0)->setFocus();
            byMouse ? board.Press(0) : board.Key(Qt::Key_Return);
            byMouse ? board.MoveOver(board.Owner(1)) : board.Key(Qt::Key_Down);
            EXPECT_EQ(Colours(board), ".R.....YR.");
            happens(board);
            QCoreApplication::processEvents();
            EXPECT_EQ(Colours(board).find('R') == std::string::npos, ends);
            const QString heading = board.Find("InvasionPlanet(0)")->Heading();
            EXPECT_EQ(heading.contains(", over Player 1"), !byMouse && !ends);
            byMouse ? board.DropOn(board.Owner(1)) : QTest::keyClick(board.Row(0), Qt::Key_Return);
            EXPECT_EQ(board.state.Game.Planet(0).Owner, ends ? NeutralOwner : 1);
        }
    }
}

TEST(PlanetBoard, ADropOnAWindowOverTheBoardDoesNothing) {
    const GameWindow board(InPlay());
    board.Choose("Notes");
    board.Find<QWidget>("NoteForm")->move(board.window.mapToGlobal(QPoint(150, 40)));
    board.Drag(0, 6);
    EXPECT_EQ(Colours(board), ".......Y..") << "nor is an owner marked that is not seen";
    EXPECT_EQ(board.state.Game.Planet(0).Owner, NeutralOwner);
}

TEST(PlanetBoard, TheWheelScrollsAndRestingOnAPlanetTellsWhoseItIs) {
    GameWindow board(InPlay());
    board.Activate();
    Turn(board.Row(3), -1);
    board.MoveOver(board.Row(1));
    const auto tip = [] { return AsRead(QToolTip::text()); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return tip() == "World 4 belongs to Player 2"; }));
    EXPECT_EQ(board.Find("InvasionPlanet", 0)->Explanation(), "World 3 belongs to nobody");
    QToolTip::hideText();
}

} // namespace
} // namespace ksm
