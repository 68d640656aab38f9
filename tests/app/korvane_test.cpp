#include "app/single_instance.h"
#include "controls/message_label.h"
#include "controls/spin_bar.h"
#include "tests/game_window.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QMenuBar>

namespace ksm {
namespace {

TEST(MainWindow, StartsWithTheDesignCaptionsAndWithoutComputingValues) {
    GameWindow game;
    EXPECT_EQ(game.window.centralWidget()->size(), QSize(640, 446));
    EXPECT_EQ(game.window.height(), 446 + game.window.menuBar()->height());
    EXPECT_EQ(game.state, GameOfTwentyPlanets());
    EXPECT_EQ(game.Caption("PolPlay", 1), "Player") << "the players have not been ranked yet";
    EXPECT_EQ(game.Find<MessageLabel>("TInfo")->Caption(),
              "\r\nPress Add to make a Trade Agreement");
    for (int player = 1; player <= MaxPlayers; ++player) {
        EXPECT_EQ(game.Caption("SpaceDocks", player), "1");
        EXPECT_EQ(game.Find<QComboBox>("Race", player)->currentText(), "Race");
        EXPECT_EQ(game.Find<QWidget>("PlayerName", player)->isVisible(), player <= 6);
    }
}

TEST(MainWindow, MenuItemsAreEnabledAndCheckedAsDesigned) {
    const std::tuple<const char*, const char*, const char*, bool, bool> items[]{
        {"new", "New Game", "", false, false},
        {"LGame", "Load Game", "F1", true, false},
        {"SGame", "Save Game", "F2", true, false},
        {"LoadPlanButton", "Load Planet List", "", false, false},
        {"Quit", "E&xit", "Ctrl+X", true, false},
        {"MenuSound", "Sound", "Ctrl+S", false, true},
        {"MenuOrlen", "Orlen house rules", "", true, false},
        {"Notes", "&Notes", "", true, false},
        {"Dice", "&Dice Roller", "", true, false},
        {"Stech", "Standard", "F5", true, false},
        {"HTech", "Corrin's End", "F6", true, false},
        {"MenuTechMod", "Tech Modifiers", "", true, false},
        {"MenuLabour", "Labour Union", "", true, false},
        {"MenuStudies", "Subsidized Studies", "", false, false},
        {"Tres", "Economic Independance", "", true, false},
        {"TFree", "Free Trade", "", true, false},
        {"TRestr", "Trade Restrictions", "", true, false},
        {"TStop", "Trade Stop", "", true, false},
        {"About", "&About", "", true, false}};
    GameWindow game;
    for (const auto& [name, caption, shortcut, enabled, checked] : items) {
        const auto* item = game.Find<QAction>(name);
        EXPECT_EQ(item->text(), caption);
        EXPECT_EQ(item->shortcut(), QKeySequence(shortcut)) << name;
        EXPECT_EQ(item->isEnabled(), enabled) << name;
        EXPECT_EQ(item->isChecked(), checked) << name;
    }
}

TEST(MainWindow, CtrlXQuitsEvenFromARaceBox) {
    GameWindow game;
    game.Activate();
    QTest::keyClick(&game.window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(game.window.isVisible());
    auto* race = game.Find<QComboBox>("Race", 1);
    race->setFocus();
    QTest::keyClick(race, Qt::Key_X, Qt::ControlModifier);
    EXPECT_FALSE(game.window.isVisible());
}

TEST(MainWindow, ShowsOnlyThePlayersInTheGame) {
    const QStringList arrays =
        QString("PolPlay PRes PInf InvasionPlayer TradePlayer PlayerName StatLine RaceLabel Race "
                "PlayerResources PlayerInfluence PlayerPlanets PlayerCredits SpaceDocks DockScroll "
                "Enviro PellamTools Micro PlayerGreenTech PlayerBlueTech PlayerRedTech "
                "PlayerYellowTech")
            .split(' ');
    GameWindow game;
    for (const int players : {10, 2, 10}) {
        game.Find<QScrollBar>("PlayNumScroll")->setValue(11 - players);
        for (const QString& array : arrays) {
            for (int player = 1; player <= MaxPlayers; ++player) {
                EXPECT_EQ(game.Find<QWidget>(array.toLatin1(), player)->isHidden(),
                          player > players)
                    << array.toStdString() << player << " of " << players;
            }
        }
    }
    const auto place = [&](const char* array) { return game.Find<QWidget>(array, 8)->geometry(); };
    EXPECT_EQ(place("PlayerName"), QRect(472, 184, 55, 18));
    EXPECT_EQ(place("DockScroll"), QRect(499, 290, 17, 25));
    EXPECT_EQ(place("TradePlayer"), QRect(125, 157, 30, 18));
    EXPECT_EQ(place("InvasionPlayer"), QRect(0, 136, 70, 14));
}

TEST(Setup, ThePlayerCountSnapsBackIntoItsRange) {
    GameWindow game;
    auto* scroll = game.Find<QScrollBar>("PlayNumScroll");
    for (const auto& [written, stands, players] : {std::tuple{0, 1, 10}, std::tuple{10, 9, 2},
                                                   std::tuple{32767, 9, 2}, std::tuple{3, 3, 8}}) {
        scroll->setValue(written);
        EXPECT_EQ(scroll->value(), stands);
        EXPECT_EQ(game.state.NumPlayers, players);
    }
}

TEST(Setup, ThePanelCoversSummaryAndBoardUntilStart) {
    GameWindow game;
    QWidget* client = game.window.centralWidget();
    for (const QPoint place : {QPoint(20, 100), QPoint(200, 100), QPoint(330, 175)}) {
        EXPECT_EQ(client->childAt(place), game.Find<QWidget>("GameSetupPic"));
    }
    game.Start();
    EXPECT_EQ(client->childAt(200, 7), game.Find("InvasionPlayer", AllPlanets));
    for (int player = 1; player <= 6; ++player) {
        EXPECT_TRUE(game.Find<QWidget>("Race", player)->isHidden());
        EXPECT_TRUE(game.Find<QWidget>("RaceLabel", player)->isVisible());
    }
    EXPECT_EQ(game.Caption("PolPlay", 1), "") << "nobody has a name yet";
}

TEST(Setup, OnlyAnEntryTakenFromTheListChoosesARace) {
    GameWindow game;
    game.Activate();
    auto* box = game.Find<QComboBox>("Race", 2);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "Altheran");
    QTest::keyClick(box, Qt::Key_Return);
    game.Find<QWidget>("PlayerName", 1)->setFocus();
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Race");
    EXPECT_EQ(box->currentText(), "Race") << "the box never claims a race that is not in force";

    emit box->activated(0);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Altheran");
    EXPECT_EQ(game.Caption("PlayerInfluence", 2), "2") << "the planet's, and one space dock";
    EXPECT_TRUE(game.Find<QCheckBox>("Enviro", 2)->isChecked());
    EXPECT_TRUE(game.Find<QCheckBox>("Micro", 2)->isEnabled());
    game.state.Planet(0).Owner = 5;
    emit box->activated(0);
    EXPECT_EQ(game.state.Planet(0).Owner, 2) << "choosing the same entry again takes the home back";
    emit box->activated(3);
    EXPECT_FALSE(game.Find<QCheckBox>("Enviro", 2)->isChecked());
    EXPECT_FALSE(game.Find<QCheckBox>("Micro", 2)->isEnabled());
}

TEST(Setup, TheKeyboardChoosesARaceWithoutTakingTheHomesOfOthers) {
    GameWindow game;
    emit game.Find<QComboBox>("Race", 1)->activated(0);
    auto* box = game.Find<QComboBox>("Race", 2);
    QTest::keyClick(box, Qt::Key_Down);
    ASSERT_TRUE(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Quorvi");
    EXPECT_EQ(game.Caption("PlayerPlanets", 1), "1");
}

TEST(Setup, RaceNamesFitTheBoxesOfTenPlayers) {
    GameWindow game;
    game.Find<QScrollBar>("PlayNumScroll")->setValue(1);
    auto* box = game.Find<QComboBox>("Race", 10);
    for (int race = 0; race < RaceCount; ++race) {
        box->setCurrentIndex(race);
        EXPECT_LE(box->lineEdit()->fontMetrics().horizontalAdvance(box->currentText()),
                  box->lineEdit()->width() - 4);
    }
}

TEST(Laws, LabourUnionExchangesAndReturns) {
    GameWindow game;
    emit game.Find<QComboBox>("Race", 1)->activated(0);
    game.Start();
    game.Find<QScrollBar>("DockScroll", 1)->setValue(0);
    for (const char* figures : {"2/11/2/11", "11/2/11/2", "2/11/2/11"}) {
        EXPECT_EQ(game.Caption("PlayerResources", 1) + "/" + game.Caption("PlayerInfluence", 1) +
                      "/" + game.Caption("PlayerCredits", 1) + "/" + game.Caption("PInf", 1),
                  figures);
        game.Choose("MenuLabour");
    }
    EXPECT_TRUE(game.Find<QAction>("MenuLabour")->isChecked());
}

TEST(Laws, TheHouseRuleRanksAgainWithoutComputing) {
    GameWindow game;
    game.Start();
    game.state.Player(4).Name = "Rich";
    game.state.Player(4).Resources = 3;
    for (const int place : {10, 1}) {
        game.Choose("MenuOrlen");
        EXPECT_EQ(game.Caption("PolPlay", place), "Rich");
        EXPECT_EQ(game.Find<QAction>("MenuOrlen")->isChecked(), place == 10);
    }
}

TEST(Technologies, DocksAndBoxesChangeTheFiguresAtOnce) {
    GameWindow game;
    game.Click("Enviro", 3);
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "1");
    EXPECT_TRUE(game.Find<QWidget>("PellamTools", 3)->isEnabled());
    game.Find<QScrollBar>("DockScroll", 3)->setValue(0);
    EXPECT_EQ(game.Caption("SpaceDocks", 3) + game.Caption("PlayerInfluence", 3), "1010");
    game.Click("PellamTools", 3);
    game.Click("Enviro", 3);
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "0");
    game.Click("PellamTools", 3);
    EXPECT_TRUE(game.Find<QWidget>("Micro", 3)->isEnabled())
        << "only Enviro Comp. applies the rule";
}

TEST(SingleInstance, ASecondOneSeesTheFirstUntilItEndsOrCrashes) {
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    {
        const SingleInstance first;
        EXPECT_FALSE(first.OtherIsRunning());
        EXPECT_TRUE(SingleInstance().OtherIsRunning());
    }
    EXPECT_FALSE(SingleInstance().OtherIsRunning());
    QFile left(runtime.filePath("ksm.lock"));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write("999999999\nksm\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    left.close();
    EXPECT_FALSE(SingleInstance().OtherIsRunning());
}

} // namespace
} // namespace ksm
