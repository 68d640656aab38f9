#include "tests/game_window.h"

#include <QMenu>

#include <functional>

namespace ksm {
namespace {

/// A game in play. Planets 4 to 18 belong to player 2, planet 19 to player 6, the others to nobody.
struct Board : GameWindow {
    explicit Board(int listed = AllPlanets) {
        Start();
        for (int planet = 4; planet < 20; ++planet) {
            state.Game.Planet(planet).Owner = planet == 19 ? 6 : 2;
        }
        window.UpdateValues();
        Click("InvasionPlayer", listed);
    }

    std::string Tag(int row) const { return Row(row)->property("Tag").toString().toStdString(); }
    /// The colours of the pool, players 1 to 6, "All planets" and the first two rows.
    std::string Colours() const {
        std::string letters;
        const auto add = [&](const QWidget* label) {
            const QColor colour = label->palette().color(QPalette::Window);
            letters += colour == QColor(Qt::red) ? 'R' : colour == QColor(Qt::yellow) ? 'Y' : '.';
        };
        for (const int owner : {0, 1, 2, 3, 4, 5, 6, AllPlanets}) {
            add(Owner(owner));
        }
        add(Row(0));
        add(Row(1));
        return letters;
    }
    void Key(Qt::Key key) const { QTest::keyClick(Row(0), key); }
};

TEST(PlanetBoard, ADropGivesCancelsOrIsRefused) {
    const struct {
        int listed, row;
        std::vector<int> over;
        const char *target, *during, *after, *firstTag;
        int planet, owner;
    } rows[]{
        {AllPlanets, 0, {3}, "InvasionPlayer(3)", "...R...YR.", ".......Y..", "0", 0, 3},
        {AllPlanets, 1, {1, 0}, "InvasionPlayer(0)", "R......Y.R", ".......Y..", "0", 1, 0},
        {2, 0, {1, 0}, "InvasionPlayer(0)", "R.Y.....R.", "..Y.......", "5", 4, 0},
        // The mark stays until another owner is passed over, or the drop is cancelled.
        {2, 1, {4, 2}, "InvasionPlayer(2)", "..Y.R....R", "..Y.R....R", "4", 5, 2},
        {2, 1, {4, 6}, "InvasionPlayer(20)", "..Y...R..R", "..Y...R..R", "4", 5, 2},
        {2, 1, {6}, "InvasionPlanet(5)", "..Y...R..R", "..Y...R..R", "4", 5, 2},
        {2, 1, {6}, "AddTAbutton", "..Y...R..R", "..Y...R..R", "4", 5, 2},
        {2, 1, {6}, "InvasionPic", "..Y...R..R", "..Y.......", "4", 5, 2},
        {6, 0, {5}, "InvasionPlanet(1)", ".....RY.R.", "......Y...", "19", 19, 6},
        {6, 0, {5}, "InvasionResInf(9)", ".....RY.R.", "......Y...", "19", 19, 6},
        {5, 0, {6}, "InvasionPlayer(6)", ".....YR.R.", ".....YR.R.", "255", 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.listed << " listed, dropped on " << row.target);
        Board board(row.listed);
        const auto* target = board.Find<QWidget>(row.target);
        board.Press(row.row);
        for (const int owner : row.over) {
            board.MoveOver(board.Owner(owner));
        }
        auto* outline = board.Find<QWidget>("DragOutline");
        EXPECT_TRUE(outline->isVisible());
        EXPECT_TRUE(OnScreen(board.window) == Picture(board.window)) << "not painted anew";
        EXPECT_EQ(board.Colours(), row.during);
        const bool isPanel = target == board.Find<QWidget>("InvasionPic");
        board.DropOn(target, isPanel ? QPoint(60, 177) : target->rect().center());
        EXPECT_FALSE(outline->isVisible());
        EXPECT_EQ(board.Colours(), row.after);
        EXPECT_EQ(board.Tag(0), row.firstTag);
        EXPECT_EQ(board.state.Game.Planet(row.planet).Owner, row.owner);
    }
}

// What is dragged by mouse or carried by keyboard, and what comes between.
TEST(PlanetBoard, OnlyWhatIsStillHeldCanBeSetDown) {
    const struct {
        const char* what;
        std::function<void(Board&)> happens;
        bool endsDrag, endsCarrying;
    } rows[]{{"nothing", [](Board&) {}, false, false},
             {"a modal window", [](Board& board) { board.Choose("About"); }, true, true},
             {"a window beside", [](Board& board) { board.Choose("Dice"); }, true, false},
             {"a menu", [](Board& board) { board.Find<QMenu>("MenuLaws")->popup({}); }, true, true},
             {"a release", [](Board& board) { board.Click("TradePic"); }, true, true},
             {"the scroll bar", [](Board& board) { board.Move("PlanetScroller", 3); }, false, true},
             {"another list", [](Board& board) { QTest::keyClick(board.Owner(2), Qt::Key_Space); },
              false, true},
             {"the focus", [](Board& board) { board.Find<QWidget>("PlayerName", 1)->setFocus(); },
              false, true}};
    for (const auto& [what, happens, endsDrag, endsCarrying] : rows) {
        SCOPED_TRACE(what);
        Board dragging;
        dragging.Press(0);
        dragging.MoveOver(dragging.Owner(5));
        happens(dragging);
        EXPECT_EQ(dragging.Find<QWidget>("DragOutline")->isVisible(), !endsDrag);
        EXPECT_EQ(dragging.Colours().find('R') == std::string::npos, endsDrag);
        dragging.DropOn(dragging.Owner(6));
        EXPECT_EQ(dragging.state.Game.Planet(0).Owner, endsDrag ? NeutralOwner : 6);

        Board carrying;
        carrying.Activate();
        carrying.Row(0)->setFocus();
        carrying.Key(Qt::Key_Return);
        carrying.Key(Qt::Key_Down);
        happens(carrying);
        EXPECT_EQ(carrying.Colours().find('R') == std::string::npos, endsCarrying);
        carrying.Key(Qt::Key_Return);
        EXPECT_EQ(carrying.state.Game.Planet(0).Owner, endsCarrying ? NeutralOwner : 1);
        EXPECT_EQ(carrying.state.Game.Planet(4).Owner, 2);
    }
}

TEST(PlanetBoard, ADropOnAWindowOverTheBoardDoesNothing) {
    Board board;
    board.Choose("Notes");
    board.Find<QWidget>("NoteForm")->move(board.window.mapToGlobal(QPoint(150, 40)));
    board.Drag(0, 6);
    EXPECT_EQ(board.Colours(), ".......Y..") << "nor is an owner marked that is not seen";
    EXPECT_EQ(board.state.Game.Planet(0).Owner, NeutralOwner);
    board.Close("NoteForm");
    board.Drag(0, 6);
    EXPECT_EQ(board.state.Game.Planet(0).Owner, 6);
    EXPECT_EQ(board.Caption("PlayerResources", 6), "4") << "figures follow";
}

// The keyboard's way: Return picks up, arrows carry, Return sets down, Escape puts back.
TEST(PlanetBoard, APlanetCanBeGivenAwayByKeyboard) {
    Board board(2);
    const auto heading = [&] { return board.Find("InvasionPlanet", 0)->Heading(); };
    board.Key(Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(board.Row(0), &repeated);
    EXPECT_EQ(board.Colours(), "R.Y.....R.") << "a held Return only picks up";
    board.Key(Qt::Key_Down);
    EXPECT_EQ(heading(), "Planet, row 1, over Player 1");
    board.Key(Qt::Key_Down);
    EXPECT_EQ(board.Colours(), "..YR....R.") << "passes over the listed owner";
    board.Key(Qt::Key_Return);
    EXPECT_EQ(board.state.Game.Planet(4).Owner, 3);

    board.Key(Qt::Key_Return);
    board.Key(Qt::Key_Up);
    EXPECT_EQ(board.Colours(), "..Y...R.R.") << "round from the first owner to the last";
    board.Key(Qt::Key_Escape);
    EXPECT_EQ(board.Colours(), "..Y.......");
    EXPECT_EQ(heading(), "Planet, row 1");
    EXPECT_EQ(board.state.Game.Planet(5).Owner, 2);
    board.Click("InvasionPlayer", 5);
    board.Key(Qt::Key_Return);
    EXPECT_EQ(board.Colours(), ".....Y....") << "an empty row has nothing to pick up";
    board.Click("InvasionPlayer", 2);
    board.Key(Qt::Key_Return);
    board.state.View.MarkedRows.reset(); // as another game has it
    board.window.ShowGame();
    EXPECT_EQ(heading(), "Planet, row 1") << "nothing is carried any longer";
}

} // namespace
} // namespace ksm
