#include "app/korvane.h"

#include "app/main_menu.h"
#include "app/setup_panel.h"
#include "controls/focus_group.h"
#include "controls/message_box.h"
#include "dialogs/note_form.h"
#include "economy/game_setup.h"
#include "economy/laws.h"
#include "economy/player_table.h"
#include "economy/recompute.h"
#include "economy/turn_order.h"
#include "economy/turn_order_table.h"
#include "planets/planet_board.h"
#include "trade/trade_laws.h"
#include "trade/trade_panel.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>

#include <algorithm>

namespace ksm {

namespace {

constexpr QSize ClientSize{640, 446};

/// The area below the menu bar. Nothing shows whether it has the focus, which a click on a label
/// gives it: to paint all of it anew, as Qt would, were wasted.
class ClientArea : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}
};

} // namespace

Korvane::Korvane(GameState& game, KeptGame* keeper)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint),
      state(game), history(game.Game), kept(keeper) {
    setObjectName("Korvane");
    setWindowTitle(ProgramTitle);
    menu = new MainMenu(state.Game, this);
    setMenuBar(menu);
    client = new ClientArea(this);
    client->setFixedSize(ClientSize);
    // The menu bar comes on top of the client area, however high it is.
    setCentralWidget(client);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    MakePanels();
    ConnectPanels();
    ConnectMenu();
    ConnectSteps();
    CentreOnScreen();
    ShowGame();
}

// A control that loses the focus in going may still have a change to announce.
Korvane::~Korvane() { delete takeCentralWidget(); }

void Korvane::MakePanels() {
    // The order of the Tab key.
    setup = new SetupPanel(state.Game, client);
    table = new PlayerTable(state.Game, client);
    summary = new TurnOrderTable(state.Game, client);
    board = new PlanetBoard(state, client);
    trade = new TradePanel(state.Game, client);
    setup->raise();
    for (int player = 1; player <= MaxPlayers; ++player) {
        playerControls[player] = summary->PlayerControls(player) + board->PlayerControls(player) +
                                 trade->PlayerControls(player) +
                                 table->Column(player).PlayerControls();
    }
    // The focus starts on no control, and a click on the background takes it away from one.
    client->setFocusPolicy(Qt::ClickFocus);
    client->setAccessibleName("Player table");
    client->setFocus();
}

void Korvane::ConnectPanels() {
    connect(table, &PlayerTable::Changed, this, &Korvane::Changed);
    connect(board, &PlanetBoard::Changed, this, &Korvane::Changed);
    connect(trade, &TradePanel::Changed, this, &Korvane::Changed);
    connect(setup, &SetupPanel::Changed, this, &Korvane::Changed);
    connect(table, &PlayerTable::NameClicked, this, &Korvane::PlayerName_Click);
    connect(setup, &SetupPanel::StartClicked, this, &Korvane::StartGameButton_Click);
}

void Korvane::ConnectMenu() {
    constexpr std::array<std::pair<const char*, void (Korvane::*)()>, 15> handlers{
        {{"LGame", &Korvane::LGame_Click},
         {"SGame", &Korvane::SGame_Click},
         {"Quit", &Korvane::Quit_Click},
         {"MenuOrlen", &Korvane::MenuOrlen_Click},
         {"Notes", &Korvane::Notes_Click},
         {"Dice", &Korvane::Dice_Click},
         {"Stech", &Korvane::Stech_Click},
         {"HTech", &Korvane::HTech_Click},
         {"MenuTechMod", &Korvane::MenuTechMod_Click},
         {"MenuLabour", &Korvane::MenuLabour_Click},
         {"Tres", &Korvane::Tres_Click},
         {"TFree", &Korvane::TFree_Click},
         {"TRestr", &Korvane::TRestr_Click},
         {"TStop", &Korvane::TStop_Click},
         {"About", &Korvane::About_Click}}};
    for (const auto& [item, handler] : handlers) {
        connect(menu->findChild<QAction*>(item), &QAction::triggered, this, handler);
    }
}

void Korvane::UpdateValues() { Recompute(state.Game); }

void Korvane::TurnOrder() { ksm::TurnOrder(state.Game); }

void Korvane::LayoutForPlayerCount() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        player > state.Game.NumPlayers ? HidePlayerControls(player) : ShowPlayerControls(player);
    }
}

void Korvane::ShowPlayerControls(int player) {
    std::ranges::for_each(playerControls[player], &QWidget::show);
}

void Korvane::HidePlayerControls(int player) {
    std::ranges::for_each(playerControls[player], &QWidget::hide);
}

void Korvane::ShowGame() {
    const QWidget* focused = focusWidget();
    menu->ShowGame();
    setup->ShowGame();
    table->ShowGame();
    summary->ShowGame();
    board->ShowGame();
    trade->ShowGame();
    // Each stands in its place by now.
    LayoutForPlayerCount();
    if (auto* notes = findChild<NoteForm*>(QString(), Qt::FindDirectChildrenOnly)) {
        notes->ShowNotes();
    }
    if (focusWidget() != focused) {
        // Its control is gone. The neighbour, to which Qt hands the focus, was not asked for.
        client->setFocus();
    }
}

void Korvane::StartGameButton_Click() {
    StartGame(state.Game, QDateTime::currentMSecsSinceEpoch());
    UpdateValues();
    history.Restart(state.Game);
    emit Changed();
}

void Korvane::MenuOrlen_Click() {
    ToggleOrlenHouseRules(state.Game);
    TurnOrder();
    emit Changed();
}

void Korvane::MenuLabour_Click() {
    ToggleLabourUnion(state.Game);
    UpdateValues();
    emit Changed();
}

void Korvane::Tres_Click() {
    ToggleEconomicIndependence(state.Game);
    emit Changed();
}

void Korvane::TFree_Click() {
    ToggleFreeTrade(state.Game);
    UpdateValues();
    emit Changed();
}

void Korvane::TRestr_Click() {
    ToggleTradeRestrictions(state.Game);
    UpdateValues();
    emit Changed();
}

void Korvane::TStop_Click() {
    StopTrade(state.Game);
    UpdateValues();
    emit Changed();
}

bool Korvane::focusNextPrevChild(bool next) {
    FocusGroup::MoveOn(*this, next);
    return true;
}

// Return does what Space does; Qt has it so in dialogs only.
void Korvane::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (button && isReturn && !event->isAutoRepeat()) {
        button->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void Korvane::CentreOnScreen() {
    adjustSize();
    QRect frame = frameGeometry();
    frame.moveCenter(screen()->geometry().center());
    // What a screen is too small for is cut off at the end, where neither title nor menus are.
    const QPoint first = screen()->availableGeometry().topLeft();
    frame.moveTo(std::max(frame.left(), first.x()), std::max(frame.top(), first.y()));
    move(frame.topLeft());
}

void Korvane::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    // The frame counts, and it is known only when the window manager has put it around the window.
    if (!placed && frameGeometry() != geometry()) {
        placed = true;
        CentreOnScreen();
    }
}

void Korvane::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        // From now on it stands where the user wants it.
        placed = true;
    }
}

} // namespace ksm
