// The main window: it wires the panels, the menus and the other windows to the game.
#pragma once

#include "model/game_state.h"
#include "model/history.h"
#include "model/outcome.h"
#include "model/per_player.h"

#include <QMainWindow>

class QMenu;

namespace ksm {

class KeptGame;
class MainMenu;
class PlanetBoard;
class PlayerTable;
class SetupPanel;
class TradePanel;
class TurnOrderTable;

/// Knows all panels, which do not know one another: a handler of one of them changes an input and
/// has the rules recompute what follows; then every panel shows the whole game.
class Korvane : public QMainWindow {
    Q_OBJECT

public:
    /// Shows the game as it is. Every change is handed to `keeper`, if there is one.
    explicit Korvane(GameState& game, KeptGame* keeper = nullptr);
    ~Korvane() override;
    Q_DISABLE_COPY_MOVE(Korvane)

    /// Shows the whole game. It only reads: the state stays as it is, nothing is announced, and the
    /// focus stays where it is unless its control is gone.
    void ShowGame();

    /// Recomputes every derived figure, and ranks the players.
    void UpdateValues();
    /// Ranks the players by the figures last computed.
    void TurnOrder();

    // What is added to every cost of a colour, plus 15: 0..30. Writing has no other effect.
    std::int16_t GreenModifier() const { return state.Game.GreenModifier; }
    void SetGreenModifier(std::int16_t modifier) { state.Game.GreenModifier = modifier; }
    std::int16_t BlueModifier() const { return state.Game.BlueModifier; }
    void SetBlueModifier(std::int16_t modifier) { state.Game.BlueModifier = modifier; }
    std::int16_t YellowModifier() const { return state.Game.YellowModifier; }
    void SetYellowModifier(std::int16_t modifier) { state.Game.YellowModifier = modifier; }
    std::int16_t RedModifier() const { return state.Game.RedModifier; }
    void SetRedModifier(std::int16_t modifier) { state.Game.RedModifier = modifier; }

signals:
    /// The user did something, and the state is whole again. Everything that changes the state ends
    /// here, once for each thing done: the game is shown, recorded and kept.
    void Changed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakePanels();
    void ConnectPanels();
    void ConnectMenu();
    void ConnectSteps();
    void CentreOnScreen();

    void LayoutForPlayerCount();
    void ShowPlayerControls(int player);
    void HidePlayerControls(int player);

    void LGame_Click();
    void SGame_Click();
    void Notes_Click();
    void Dice_Click();
    void Stech_Click();
    void HTech_Click();
    void MenuTechMod_Click();
    void About_Click();
    void SetModifier(int colour, int modifier);
    Outcome<> LoadGame(const QString& name);
    void NameConfirmed();

    void ShowAndKeep();
    void Undo();
    void Redo();
    void TakeBack(int count);
    /// Lists the last steps; the game returns to the one that is chosen.
    void AddTakeBackTo(QMenu* steps);
    /// The state became a game that was played before.
    void Returned();
    /// All that happens until the window closes is one step.
    void MakeOneStepOf(QWidget* window);

    void PlayerName_Click(int player);
    void StartGameButton_Click();
    void MenuOrlen_Click();
    void MenuLabour_Click();
    void Tres_Click();
    void TFree_Click();
    void TRestr_Click();
    void TStop_Click();
    void Quit_Click();
    void Form_Unload();

    GameState& state;
    History history;
    KeptGame* kept;
    MainMenu* menu = nullptr;
    QWidget* client = nullptr;
    SetupPanel* setup = nullptr;
    TurnOrderTable* summary = nullptr;
    PlayerTable* table = nullptr;
    PlanetBoard* board = nullptr;
    TradePanel* trade = nullptr;
    PerPlayer<QWidgetList> playerControls; ///< what is seen while the player is in the game
    bool placed = false; ///< whether the window stands where it belongs, its frame counted
};

} // namespace ksm
