// The main window: it wires the panels, the menus and the other windows to the game.
#pragma once

#include "model/game_state.h"
#include "model/history.h"

#include <QMainWindow>

namespace ksm {

class KeptGame;
class MainMenu;
class PlanetBoard;
class PlayerTable;
class SetupPanel;
class TradePanel;
class TurnOrderTable;
struct TradeOutcome;

/// Knows all panels, which do not know one another: an input changes in one of them, the rules
/// recompute everything, every panel shows it, and the change is announced.
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

    /// Recomputes every derived figure and shows it, and ranks the players.
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
    /// here, once for each thing done.
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
    void ConnectTradeLaws();
    void ConnectSteps();
    void CentreOnScreen();

    void LayoutForPlayerCount();
    void ShowPlayerControls(int player);
    void HidePlayerControls(int player);
    void ShowPlayer(int player);
    /// Shows the controls of the phase: the setup panel and the race boxes until "START", from
    /// then on the summary table and the planet board below them.
    void ShowPhase();

    void LGame_Click();
    void SGame_Click();
    void Notes_Click();
    void Dice_Click();
    void Stech_Click();
    void HTech_Click();
    void MenuTechMod_Click();
    void About_Click();
    void SetModifier(int colour, int modifier);
    void TakeGame(const GameState& loaded);
    void NameConfirmed();

    void Keep();
    void Undo();
    void Redo();
    /// Puts a game in force that was played before.
    void Return(const Game& game);
    /// All that happens until the window closes is one step.
    void MakeOneStepOf(QWidget* window);

    void PlayerName_Click(int player);
    void StartGameButton_Click();
    void MenuOrlen_Click();
    void MenuLabour_Click();
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
    bool placed = false; ///< whether the window stands where it belongs, its frame counted
};

} // namespace ksm
