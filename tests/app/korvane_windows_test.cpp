// The windows that the menus open, and what they do to the main window.

#include "dialogs/dice_form.h"
#include "dialogs/load_form.h"
#include "dialogs/note_form.h"
#include "dialogs/tech_form.h"
#include "economy/value_update.h"
#include "saves/game_file.h"
#include "tests/game_window.h"
#include "tests/saves/sample_game.h"

#include <QCheckBox>
#include <QPlainTextEdit>

namespace ksm {
namespace {

TEST(Windows, OneInstanceIsShownAgainAndClosesWithTheMainWindow) {
    GameWindow game;
    for (const char* item : {"Notes", "Dice", "Notes", "Dice"}) {
        game.Choose(item);
    }
    EXPECT_EQ(game.window.findChildren<NoteForm*>().size(), 1);
    EXPECT_EQ(game.window.findChildren<DiceForm*>().size(), 1);
    const QPointer notes(game.Find<QWidget>("NoteForm"));
    const QPointer dice(game.Find<QWidget>("DiceForm"));
    EXPECT_FALSE(dice->isModal());
    game.window.close();
    DeleteClosed();
    EXPECT_TRUE(notes.isNull() && dice.isNull());
}

TEST(Windows, TheMenusOpenTheirWindowsModally) {
    for (const auto& [item, opened] :
         {std::pair{"Stech", "TechForm"}, std::pair{"HTech", "TechForm2"},
          std::pair{"MenuTechMod", "TechModForm"}, std::pair{"About", "AboutForm"},
          std::pair{"LGame", "LoadForm"}, std::pair{"SGame", "SaveForm"}}) {
        GameWindow game;
        game.Choose(item);
        EXPECT_TRUE(game.Find<QWidget>(opened)->isModal()) << opened;
    }
}

TEST(Modifiers, EachBarChangesTheCostsOfItsColourAndReopensAtZero) {
    const std::tuple<int, const char*, int, const char*, const char*> moves[]{
        {0, "PlayerGreenTech", 0, "+15", "45"},
        {1, "PlayerBlueTech", 12, "+3", "33"},
        {2, "PlayerRedTech", 30, "-15", "15"},
        {3, "PlayerYellowTech", 16, "-1", "29"}};
    GameWindow game;
    game.Choose("MenuTechMod");
    for (const auto& [index, cost, position, caption, expected] : moves) {
        game.Find<QScrollBar>("VScroll1", index)->setValue(position);
        EXPECT_EQ(game.Find("TechModLabel", index)->ShownText(), caption);
        EXPECT_EQ(game.Caption(cost, 4), expected);
        game.Find<QWidget>("TechModForm")->close();
        DeleteClosed();
        game.Choose("MenuTechMod");
        EXPECT_EQ(game.Caption("TechModLabel", index), "0");
        EXPECT_EQ(game.Caption(cost, 4), expected) << "the modifier stays in force";
        auto* bar = game.Find<QScrollBar>("VScroll1", index);
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(8, 77));
        EXPECT_EQ(game.Caption(cost, 4), "29") << "from the position alone";
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(8, 4));
        EXPECT_EQ(game.Caption("TechModLabel", index), "0");
    }
}

/// Puts a game in force the way the load dialog does.
void Load(const GameWindow& game, const GameState& loaded) {
    game.Choose("LGame");
    auto* form = game.Find<LoadForm>("LoadForm");
    emit form->GameLoaded(loaded);
    form->close();
    DeleteClosed();
}

TEST(LoadedGame, ComesBackAsItWasInAnotherProcess) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("evening.ksm");
    GameState rich = SampleGame();
    rich.Started = true;
    UpdateValues(rich);

    GameWindow first;
    Load(first, rich);
    const GameState shown = first.state;
    ASSERT_EQ(SaveGameFile(path, first.state), QString());

    GameWindow second;
    second.Find<QScrollBar>("PlayNumScroll")->setValue(2);
    second.Click("Enviro", 1);
    const ReadGameResult saved = LoadGameFile(path);
    ASSERT_TRUE(saved.Game) << saved.Problem.toStdString();
    Load(second, *saved.Game);
    EXPECT_EQ(second.state, shown);
    const auto picture = [](GameWindow& game) {
        return game.window.centralWidget()->grab().toImage();
    };
    EXPECT_EQ(picture(second), picture(first));
}

TEST(LoadedGame, ChangesThePhaseBothWays) {
    GameWindow game;
    GameState loaded = GameOfTwentyPlanets();
    for (const bool started : {true, false, true}) {
        loaded.Started = started;
        loaded.NumPlayers = started ? 3 : 6;
        Load(game, loaded);
        EXPECT_EQ(game.Find<QWidget>("GameSetupPic")->isHidden(), started);
        EXPECT_EQ(game.Find<QWidget>("Race", 3)->isHidden(), started);
        EXPECT_EQ(game.Find<QWidget>("PlayerName", 6)->isHidden(), started);
        EXPECT_TRUE(game.Find<QWidget>("Race", 7)->isHidden());
    }
}

// The boxes' handlers would enable and disable by the rule, which history may contradict.
TEST(LoadedGame, KeepsWhichBoxesCanBeTicked) {
    GameWindow game;
    game.Click("Enviro", 2);
    GameState loaded = GameOfTwentyPlanets();
    loaded.Player(2).Micro = loaded.Player(2).MicroEnabled = true;
    Load(game, loaded);
    EXPECT_FALSE(game.Find<QCheckBox>("Enviro", 2)->isChecked());
    EXPECT_FALSE(game.Find<QCheckBox>("PellamTools", 2)->isEnabled());
    EXPECT_TRUE(game.Find<QCheckBox>("Micro", 2)->isChecked());
    EXPECT_EQ(game.state.Player(2).MicroEnabled, true);
}

TEST(LoadedGame, OpenNotesShowTheLoadedTextForGood) {
    GameWindow game;
    game.Choose("Notes");
    auto* box = game.Find<QPlainTextEdit>("Aant");
    QTest::keyClicks(box, "old");
    GameState loaded = GameOfTwentyPlanets();
    loaded.NotesText = "new";
    Load(game, loaded);
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(game.state.NotesText, "new");
    QTest::keyClicks(box, "er");
    EXPECT_EQ(game.state.NotesText, "newer") << "writing goes on at the end";
}

} // namespace
} // namespace ksm
