// Whatever a game has become, it can be saved and taken back, and every window shows it alike.

#include "economy/explanation.h"
#include "economy/value_update.h"
#include "saves/game_file.h"
#include "saves/game_text.h"
#include "tests/random_play.h"

namespace ksm {
namespace {

/// Fails when one sees that it is another window, or when a window shows what is no longer so.
void ExpectSame(GameWindow& one, GameWindow& other) {
    const QImage first = Picture(one.window);
    const QImage second = Picture(other.window);
    EXPECT_TRUE(OnScreen(one.window) == first && OnScreen(other.window) == second)
        << "something was not painted anew";
    // Without the menu bar, which shows whether its window is the active one.
    const QRect client = one.window.centralWidget()->geometry();
    EXPECT_TRUE(first.copy(client) == second.copy(client)) << "shown otherwise than it was played";
}

void ExpectPartsAddUp(Game game) {
    UpdateValues(game);
    for (int player = 1; player <= MaxPlayers; ++player) {
        for (int figure = 0; figure < FigureCount; ++figure) {
            int sum = 0;
            for (const auto& part : Explain(game, player, static_cast<Figure>(figure)).Parts) {
                sum += part.Amount;
            }
            EXPECT_EQ(sum, ValueOf(game, player, static_cast<Figure>(figure))) << figure;
        }
    }
}

TEST(ShowGame, ShowsWhatWasPlayedTakenBackSavedAndLoadedAndOnlyReads) {
    GameWindow played;
    GameWindow shown;
    GameState loaded = played.state;
    std::vector<Game> games{loaded.Game};
    QObject::connect(&played.window, &Korvane::Changed, [&] {
        const Outcome<GameState> read = ReadGame(*WriteGame(played.state));
        ASSERT_TRUE(read) << read.Reason();
        loaded = *read;
        // A file holds no marks of a drag, and who reads it ranks the players anew.
        loaded.View = played.state.View;
        loaded.Game.TurnOrderRows = played.state.Game.TurnOrderRows;
        games.push_back(played.state.Game);
    });
    const QSignalSpy announced(&shown.window, &Korvane::Changed);
    const auto check = [&] {
        EXPECT_TRUE(loaded == played.state) << "a change was not announced, or not saved";
        shown.state = loaded;
        shown.window.ShowGame();
        EXPECT_TRUE(shown.state == loaded) << "to show a game changed it";
        played.window.centralWidget()->setFocus(); // who has it is no part of the game
        QTest::mouseMove(played.window.windowHandle(), QPoint(5, 300)); // where nothing lights up
        ExpectSame(shown, played);
        ExpectPartsAddUp(played.state.Game);
    };
    const auto takeBack = [&](int steps) {
        played.Activate();
        const Game present = played.state.Game;
        const auto known = std::ssize(games);
        for (int step = 0; step < steps; ++step) {
            GameWindow::Undo();
        }
        EXPECT_TRUE(std::find(games.begin(), games.begin() + known, played.state.Game) !=
                    games.begin() + known)
            << "a game that never was";
        check();
        for (int step = 0; step < steps; ++step) {
            GameWindow::Redo();
        }
        EXPECT_TRUE(played.state.Game == present) << "not made again";
    };
    RandomPlay play(played, 8);
    for (int step = 1; step <= 250 && !testing::Test::HasFailure(); ++step) {
        SCOPED_TRACE(step);
        if (step == 100 && !played.state.Game.Started()) {
            played.Start();
        }
        play.Step();
        check();
        if (step % 5 == 0) {
            takeBack(step / 5 % 3 + 1);
        }
    }
    EXPECT_EQ(announced.count(), 0);
    GameWindow made(played.state);
    ExpectSame(made, played);
}

/// Names the controls that are painted while it lives.
class Painted : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }
    QSet<QString> Names;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            Names << watched->objectName();
        }
        return false;
    }
};

TEST(ShowGame, PaintsWhatChangedAndNoMore) {
    GameWindow game;
    game.Activate();
    game.Start();
    game.MoveOver(game.Find<QWidget>("Enviro", 2));
    OnScreen(game.window);
    Painted painted;
    game.Click("Enviro", 2);
    OnScreen(game.window);
    // The figures beside it reach a pixel into the influence, and the rest lies below.
    EXPECT_EQ(painted.Names,
              QSet<QString>({"Enviro(2)", "PellamTools(2)", "Micro(2)", "PlayerInfluence(2)",
                             "PlayerResources(2)", "PlayerPlanets(2)", "PInf(1)", "PInf(2)",
                             "UpLefPic", "", "Korvane"}));
    painted.Names.clear();
    game.window.ShowGame();
    OnScreen(game.window);
    EXPECT_TRUE(painted.Names.isEmpty());
}

} // namespace
} // namespace ksm
