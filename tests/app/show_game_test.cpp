// Whatever a game has become, a window shows it as the window in which it was played.

#include "saves/game_text.h"
#include "tests/random_play.h"

namespace ksm {
namespace {

QImage Picture(const GameWindow& game) {
    return game.window.centralWidget()->grab().toImage();
}

TEST(ShowGame, ShowsWhatWasPlayedAndOnlyReads) {
    GameWindow played;
    GameWindow shown;
    QSignalSpy announced(&shown.window, &Korvane::Changed);
    RandomPlay play(played, 8);
    for (int step = 1; step <= 600; ++step) {
        play.Step();
        shown.state = played.state;
        shown.window.ShowGame();
        ASSERT_TRUE(shown.state == played.state) << step;
        ASSERT_EQ(Picture(shown), Picture(played)) << step;
    }
    EXPECT_TRUE(played.state.Started);
    EXPECT_EQ(announced.count(), 0);
}

TEST(ShowGame, AWindowMadeForAGameInPlayEqualsTheOneInWhichItWasPlayed) {
    GameWindow played;
    played.Start();
    RandomPlay play(played, 9);
    for (int step = 0; step < 200; ++step) {
        play.Step();
    }
    GameWindow made(played.state);
    EXPECT_TRUE(made.state == played.state);
    EXPECT_EQ(Picture(made), Picture(played));
}

TEST(ShowGame, EveryStateThatIsAnnouncedCanBeSavedAndRead) {
    GameWindow played;
    RandomPlay play(played, 10);
    int announced = 0;
    QObject::connect(&played.window, &Korvane::Changed, [&] {
        ++announced;
        const ReadGameResult read = ReadGame(WriteGame(played.state));
        EXPECT_TRUE(read.Game) << read.Problem.toStdString();
    });
    for (int step = 0; step < 500 && !testing::Test::HasFailure(); ++step) {
        play.Step();
    }
    EXPECT_GT(announced, 500);
}

} // namespace
} // namespace ksm
