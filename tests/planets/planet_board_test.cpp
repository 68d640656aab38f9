#include "tests/game_window.h"

#include <QMenu>

#include <functional>

namespace ksm {
namespace {

const QColor Yellow(0xFF, 0xFF, 0x00);
const QColor Red(0xFF, 0x00, 0x00);
const QColor Face(239, 239, 239);

/// A game in play, with players who own planets.
struct Board : GameWindow {
    Board() {
        Start();
        for (int planet = 4; planet < 20; ++planet) {
            state.Planet(planet).Owner = 2;
        }
        window.UpdateValues();
    }

    QWidget* Row(int row) const { return Find<QWidget>("InvasionPlanet", row); }
    std::string Tag(int row) const { return Row(row)->property("Tag").toString().toStdString(); }

    static char Letter(const QColor& colour) {
        return colour == Red ? 'R' : colour == Yellow ? 'Y' : colour == Face ? '.' : '?';
    }
    /// The colours of the pool, players 1 to 6 and "All planets".
    std::string Owners() const {
        std::string letters;
        for (const int owner : {0, 1, 2, 3, 4, 5, 6, AllPlanets}) {
            letters += Letter(Back("InvasionPlayer", owner));
        }
        return letters;
    }
    char RowColour(int row) const { return Letter(Back("InvasionPlanet", row)); }

    void Press(int row) const { QTest::mousePress(Row(row), Qt::LeftButton, {}, QPoint(3, 3)); }
    /// The middle of a control, as a place in the dragged label.
    QPoint Over(int row, const QWidget* target) const {
        return Row(row)->mapFromGlobal(target->mapToGlobal(target->rect().center()));
    }
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

TEST(PlanetBoard, StartsWithTheFirstPageOfAllPlanets) {
    Board board;
    EXPECT_EQ(board.Caption("InvasionPlanet", 0), "Quessin");
    EXPECT_EQ(board.Caption("InvasionResInf", 0), "2 1");
    EXPECT_EQ(board.Tag(11), "11");
    EXPECT_EQ(board.Owners(), ".......Y");
    EXPECT_EQ(board.Back("InvasionResInf", 1), QColor(0x40, 0x40, 0xFF));
    EXPECT_EQ(board.Find<QScrollBar>("PlanetScroller")->maximum(), 8);
}

TEST(PlanetBoard, AnOwnersViewIsListedFromThePresentPosition) {
    Board board;
    auto* scroller = board.Find<QScrollBar>("PlanetScroller");
    scroller->setValue(8);
    board.Click("InvasionPlayer", 2);
    EXPECT_EQ(scroller->value(), 4) << "lowered to the end of sixteen planets";
    EXPECT_EQ(board.Tag(0) + "-" + board.Tag(11), "8-19");
    board.Click("InvasionPlayer", 5);
    EXPECT_EQ(board.Tag(0) + board.Caption("InvasionPlanet", 0), "255");
    EXPECT_GT(board.Row(0)->width(), 20) << "an empty row can be dragged";
    EXPECT_EQ(board.Back("InvasionResInf", 1), Face);
    EXPECT_EQ(board.Owners(), ".....Y..");
}

TEST(PlanetBoard, DroppingAPlanetGivesItAndListsAgain) {
    Board board;
    board.Drag(0, 3);
    EXPECT_EQ(board.state.Planet(0).Owner, 3);
    EXPECT_EQ(board.Caption("PlayerResources", 3), "2");
    EXPECT_EQ(board.Tag(0), "0") << "all planets are still listed";
    const GameState before = board.state;
    board.Drag(0, 3);
    EXPECT_EQ(board.state, before) << "its owner has it already";
    EXPECT_EQ(board.Owners() + board.RowColour(0), ".......Y.");

    board.Click("InvasionPlayer", 2);
    board.Drag(0, NeutralOwner);
    EXPECT_EQ(board.state.Planet(4).Owner, NeutralOwner);
    EXPECT_EQ(board.Tag(0), "5") << "the later rows move up";
    EXPECT_EQ(board.Owners(), "..Y.....");
}

TEST(PlanetBoard, TheOwnerUnderTheDragIsRedAndTheListedOneStaysYellow) {
    Board board;
    board.Click("InvasionPlayer", 2);
    board.Press(1);
    EXPECT_EQ(board.RowColour(1), '.');
    board.MoveOver(1, 4);
    board.MoveOver(1, 2);
    EXPECT_EQ(board.Owners(), "..Y.R...") << "stays red until another is passed over";
    board.MoveOver(1, 5);
    EXPECT_EQ(board.Owners() + board.RowColour(1), "..Y..R..R");
    const QPoint panel = board.Find<QWidget>("InvasionPic")->mapToGlobal(QPoint(60, 177));
    QTest::mouseRelease(board.Row(1), Qt::LeftButton, {}, board.Row(1)->mapFromGlobal(panel));
    EXPECT_EQ(board.Owners() + board.RowColour(1), "..Y......");
}

TEST(PlanetBoard, RefusedDropsAndDropsElsewhereLeaveTheColours) {
    Board board;
    board.Click("InvasionPlayer", 2);
    const auto before = static_cast<const Game&>(board.state);
    for (const char* target :
         {"InvasionPlayer(2)", "InvasionPlayer(20)", "InvasionPlanet(5)", "AddTAbutton"}) {
        board.Press(1);
        board.MoveOver(1, 6);
        board.DropOn(1, board.Find<QWidget>(target));
        EXPECT_EQ(board.Owners() + board.RowColour(1), "..Y...R.R") << target;
    }
    EXPECT_TRUE(board.state == before);
    board.Click("InvasionPlayer", 5);
    board.Drag(7, 6);
    EXPECT_EQ(board.Owners(), ".....YR.") << "an empty row can be dragged, not given";
    EXPECT_EQ(board.state.Planets, before.Planets);
}

// A window, a menu, or something that got the release of the button.
TEST(PlanetBoard, ADragThatSomethingComesBetweenEndsVisibly) {
    const std::function<void(Board&)> disturbances[]{
        [](Board& board) {
            board.Choose("About");
            board.Find<QWidget>("AboutForm")->close();
        },
        [](Board& board) {
            board.Choose("Dice");
            board.Find<QWidget>("DiceForm")->close();
        },
        [](Board& board) {
            board.Find<QMenu>("MenuLaws")->popup(QPoint(0, 0));
            board.Find<QMenu>("MenuLaws")->close();
        },
        [](Board& board) { QTest::mouseRelease(board.Find<QWidget>("TradePic"), Qt::LeftButton); }};
    for (const auto& disturb : disturbances) {
        Board board;
        board.Press(0);
        auto* outline = board.Find<QWidget>("DragOutline");
        EXPECT_TRUE(outline->isVisible()) << "from the press on";
        board.MoveOver(0, 6);
        disturb(board);
        EXPECT_FALSE(outline->isVisible());
        EXPECT_EQ(board.Owners() + board.RowColour(0), ".......Y.");
        board.DropOn(0, board.Find("InvasionPlayer", 6));
        EXPECT_EQ(board.state.Planet(0).Owner, NeutralOwner);
    }
}

TEST(PlanetBoard, ADragGoesOnWhenTheBoardIsListedAgain) {
    const std::function<void(Board&)> listings[]{
        [](Board& board) { board.Find<QScrollBar>("PlanetScroller")->setValue(3); },
        [](Board& board) { QTest::keyClick(board.Find("InvasionPlayer", 2), Qt::Key_Space); }};
    for (const auto& list : listings) {
        Board board;
        board.Press(0);
        list(board);
        EXPECT_NE(board.Tag(0), "0");
        board.MoveOver(0, 6);
        EXPECT_EQ(board.Back("InvasionPlayer", 6), Red);
        board.DropOn(0, board.Find("InvasionPlayer", 6));
        EXPECT_EQ(board.state.Planet(0).Owner, 6) << "the planet that was pressed";
    }
}

TEST(PlanetBoard, ADropOnAnEmptyRowCancels) {
    Board board;
    board.Click("InvasionPlayer", 2);
    for (int planet = 4; planet < 17; ++planet) {
        board.Drag(0, 3); // until three are left
    }
    board.Press(0);
    board.MoveOver(0, 6);
    board.DropOn(0, board.Row(8));
    EXPECT_EQ(board.Owners() + board.RowColour(0), "..Y......");
}

TEST(PlanetBoard, ADropOnAWindowOverTheBoardDoesNothing) {
    Board board;
    board.Choose("Notes");
    auto* notes = board.Find<QWidget>("NoteForm");
    notes->move(board.window.mapToGlobal(QPoint(150, 40)));
    board.Press(0);
    board.MoveOver(0, 6);
    board.DropOn(0, board.Find("InvasionPlayer", 6));
    EXPECT_EQ(board.state.Planet(0).Owner, NeutralOwner);
    EXPECT_EQ(board.Owners() + board.RowColour(0), "......RYR");
    notes->close();
    board.Drag(0, 6);
    EXPECT_EQ(board.state.Planet(0).Owner, 6);
}

TEST(PlanetBoard, FiguresOfManyDigitsAreNotCut) {
    GameWindow game;
    game.state.Planet(0).Resources = game.state.Planet(0).Influence = 255;
    game.Start();
    game.Click("InvasionPlayer", NeutralOwner);
    EXPECT_EQ(game.Find("InvasionResInf", 0)->ShownText(), "255 255");
}

// The keyboard's way: Return picks up, arrows carry, Return sets down, Escape puts back.
TEST(PlanetBoard, APlanetCanBeGivenAwayByKeyboard) {
    Board board;
    board.Click("InvasionPlayer", 2);
    auto* row = board.Find("InvasionPlanet", 0);
    QTest::keyClick(row, Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(row, &repeated);
    EXPECT_EQ(board.Owners(), "R.Y.....") << "a held Return only picks up";
    QTest::keyClick(row, Qt::Key_Down);
    EXPECT_EQ(row->Heading(), "Planet, row 1, over Player 1");
    QTest::keyClick(row, Qt::Key_Down);
    EXPECT_EQ(board.Owners(), "..YR....") << "passes over the listed owner";
    QTest::keyClick(row, Qt::Key_Return);
    EXPECT_EQ(board.state.Planet(4).Owner, 3);

    QTest::keyClick(row, Qt::Key_Return);
    QTest::keyClick(row, Qt::Key_Up);
    EXPECT_EQ(board.Owners(), "..Y...R.") << "round from the first owner to the last";
    QTest::keyClick(row, Qt::Key_Escape);
    EXPECT_EQ(board.Owners(), "..Y.....");
    EXPECT_EQ(row->Heading(), "Planet, row 1");
    EXPECT_EQ(board.state.Planet(5).Owner, 2);
    board.Click("InvasionPlayer", 5);
    QTest::keyClick(row, Qt::Key_Return);
    EXPECT_EQ(board.RowColour(0), '.') << "an empty row has nothing to pick up";
}

// Whatever the mouse does meanwhile, only the planet that was picked up can be set down.
TEST(PlanetBoard, TheMousePutsBackWhatTheKeyboardCarries) {
    const std::pair<std::function<void(Board&)>, int> disturbances[]{
        {[](Board&) {}, 1},
        {[](Board& board) { board.Click("InvasionPlayer", 2); }, NeutralOwner},
        {[](Board& board) { board.Find<QScrollBar>("PlanetScroller")->setValue(1); }, NeutralOwner},
        {[](Board& board) { board.Drag(5, 6); }, NeutralOwner}};
    for (const auto& [disturb, owner] : disturbances) {
        Board board;
        board.Activate();
        board.Row(0)->setFocus();
        QTest::keyClick(board.Row(0), Qt::Key_Return);
        QTest::keyClick(board.Row(0), Qt::Key_Down);
        disturb(board);
        QTest::keyClick(board.Row(0), Qt::Key_Return);
        EXPECT_EQ(board.state.Planet(0).Owner, owner);
        EXPECT_EQ(board.state.Planet(4).Owner, 2);
    }
}

} // namespace
} // namespace ksm
