#include "app/korvane.h"

#include "app/layout.h"
#include "app/main_menu.h"
#include "app/races.h"
#include "app/setup_panel.h"
#include "controls/message_box.h"
#include "dialogs/note_form.h"
#include "economy/player_table.h"
#include "economy/turn_order_table.h"
#include "economy/value_update.h"
#include "planets/planet_board.h"
#include "trade/trade_laws.h"
#include "trade/trade_panel.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>

namespace ksm {

namespace {

constexpr QSize ClientSize{640, 446};

} // namespace

Korvane::Korvane(GameState& game)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                               Qt::WindowCloseButtonHint),
      state(game) {
    setObjectName("Korvane");
    setWindowTitle(ProgramTitle);
    menu = new MainMenu(this);
    setMenuBar(menu);
    client = new QWidget(this);
    client->setFixedSize(ClientSize);
    // The menu bar comes on top of the client area, however high it is.
    setCentralWidget(client);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    MakePanels();
    ConnectPanels();
    ConnectMenu();
    Form_Load();
}

void Korvane::MakePanels() {
    // The order of the Tab key.
    setup = new SetupPanel(state, client);
    table = new PlayerTable(state, client);
    summary = new TurnOrderTable(state, client);
    board = new PlanetBoard(state, client);
    trade = new TradePanel(state, client);
    setup->raise();
    // The keyboard starts on no control, and a click on the background takes it away from one.
    client->setFocusPolicy(Qt::ClickFocus);
    client->setAccessibleName("Player table");
    client->setFocus();
}

void Korvane::ConnectPanels() {
    connect(table, &PlayerTable::InputChanged, this, &Korvane::UpdateValues);
    connect(board, &PlanetBoard::InputChanged, this, &Korvane::UpdateValues);
    connect(trade, &TradePanel::InputChanged, this, &Korvane::UpdateValues);
    connect(table, &PlayerTable::RaceChosen, this, &Korvane::Race_Click);
    connect(table, &PlayerTable::NameClicked, this, &Korvane::PlayerName_Click);
    connect(setup, &SetupPanel::PlayerCountChanged, this, &Korvane::LayoutForPlayerCount);
    connect(setup, &SetupPanel::StartClicked, this, &Korvane::StartGameButton_Click);
}

void Korvane::ConnectMenu() {
    constexpr std::array handlers{
        std::pair{"LGame", &Korvane::LGame_Click},
        std::pair{"SGame", &Korvane::SGame_Click},
        std::pair{"Quit", &Korvane::Quit_Click},
        std::pair{"MenuOrlen", &Korvane::MenuOrlen_Click},
        std::pair{"Notes", &Korvane::Notes_Click},
        std::pair{"Dice", &Korvane::Dice_Click},
        std::pair{"Stech", &Korvane::Stech_Click},
        std::pair{"HTech", &Korvane::HTech_Click},
        std::pair{"MenuTechMod", &Korvane::MenuTechMod_Click},
        std::pair{"MenuLabour", &Korvane::MenuLabour_Click},
        std::pair{"About", &Korvane::About_Click},
    };
    for (const auto& [item, handler] : handlers) {
        connect(menu->Item(item), &QAction::triggered, this, handler);
    }
    ConnectLaw("Tres", Tres_Click);
    ConnectLaw("TFree", TFree_Click);
    ConnectLaw("TRestr", TRestr_Click);
    ConnectLaw("TStop", TStop_Click);
}

void Korvane::ConnectLaw(const char* item, TradeOutcome (*click)(GameState&)) {
    connect(menu->Item(item), &QAction::triggered, this, [this, click] {
        trade->Apply(click(state));
        menu->ShowLaws(state.Laws);
    });
}

void Korvane::Form_Load() {
    CentreOnScreen();
    table->Form_Load();
    board->ShowFirstPage();
    setup->Form_Load();
    state.NumPlayers = 6;
    LayoutForPlayerCount();
    ShowPhase();
}

void Korvane::UpdateValues() {
    ksm::UpdateValues(state);
    table->ShowValues();
    trade->ShowValues();
    TurnOrder();
}

void Korvane::TurnOrder() {
    summary->ShowTurnOrder();
}

void Korvane::LayoutForPlayerCount() {
    const PlayerLayout layout = ksm::LayoutForPlayerCount(state.NumPlayers);
    for (int player = 1; player <= MaxPlayers; ++player) {
        if (player > state.NumPlayers) {
            HidePlayerControls(player);
            continue;
        }
        board->PlaceOwner(player, layout.OwnerTops[player]);
        table->Column(player).Place(layout.Columns[player]);
        state.Controls[player].TradeRing = state.NumPlayers;
        ShowPlayerControls(player);
    }
    trade->PlaceLabels();
}

void Korvane::ShowPlayerControls(int player) {
    summary->ShowRow(player, true);
    board->ShowOwner(player, true);
    trade->ShowLabel(player, true);
    table->Column(player).Show(true);
}

void Korvane::HidePlayerControls(int player) {
    summary->ShowRow(player, false);
    board->ShowOwner(player, false);
    trade->ShowLabel(player, false);
    table->Column(player).Show(false);
}

void Korvane::ShowPlayer(int player) {
    table->Column(player).ShowPlayer();
    board->ShowPlayer(player);
    trade->ShowPlayer(player);
}

void Korvane::ShowPhase() {
    // A control that goes would hand the keyboard to its neighbour, which nobody asked for.
    client->setFocus();
    setup->setVisible(!state.Started);
    for (int player = 1; player <= MaxPlayers; ++player) {
        table->Column(player).ShowRaceBox(!state.Started && player <= state.NumPlayers);
    }
    // The setup panel covers them; the keyboard must not reach below it.
    summary->setEnabled(state.Started);
    board->setEnabled(state.Started);
}

void Korvane::TakeGame(const GameState& loaded) {
    state = loaded;
    setup->ShowGame();
    LayoutForPlayerCount();
    ShowPhase();
    for (int player = 1; player <= MaxPlayers; ++player) {
        ShowPlayer(player);
    }
    UpdateValues();
    board->ShowGame();
    trade->ShowGame();
    menu->ShowLaws(state.Laws);
    if (auto* notes = findChild<NoteForm*>()) {
        notes->ShowNotes();
    }
}

void Korvane::Race_Click(int player, Race race) {
    ChooseRace(state, player, race);
    ShowPlayer(player);
    UpdateValues();
}

void Korvane::StartGameButton_Click() {
    state.Started = true;
    ShowPhase();
    UpdateValues();
    TurnOrder();
}

void Korvane::MenuOrlen_Click() {
    state.Laws.OrlenHouseRules = !state.Laws.OrlenHouseRules;
    menu->ShowLaws(state.Laws);
    TurnOrder();
}

void Korvane::MenuLabour_Click() {
    state.Laws.LabourUnion = !state.Laws.LabourUnion;
    menu->ShowLaws(state.Laws);
    UpdateValues();
    TurnOrder();
}

void Korvane::CentreOnScreen() {
    adjustSize();
    move(pos() + screen()->geometry().center() - frameGeometry().center());
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
