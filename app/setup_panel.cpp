#include "app/setup_panel.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "controls/spin_bar.h"
#include "economy/game_setup.h"

#include <QPushButton>
#include <QRadioButton>

namespace ksm {

namespace {

struct LabelDesign {
    const char* Name = "";
    const char* Caption = "";
    QRect Place;
    bool Bold = false;
};

constexpr std::array<LabelDesign, 4> Labels{{
    {"SetupLabel", "Game Setup", {128, 8, 73, 17}, true},
    {"PlayNumLabel", "Number of Players", {16, 32, 97, 17}, false},
    {"TypeLabel", "Game Type:", {168, 32, 73, 17}, false},
    {"InstuctLabel1", "Select Races Below", {16, 120, 233, 17}, false},
}};

// The scroll bar stands at 1 for ten players and at 9 for two; up adds a player.
constexpr int ScrollForNoPlayers = 11;
constexpr int TopOfScroll = ScrollForNoPlayers - MaxPlayers;
constexpr int BottomOfScroll = ScrollForNoPlayers - MinPlayers;

} // namespace

SetupPanel::SetupPanel(Game& shown, QWidget* parent) : QWidget(parent), game(shown) {
    NameAndPlace(*this, "GameSetupPic", {0, 0, 337, 180}, "Game Setup");
    setAutoFillBackground(true);
    MakeLabels();
    MakeControls();
}

void SetupPanel::MakeLabels() {
    for (const LabelDesign& design : Labels) {
        auto* label = new CaptionLabel(design.Name, design.Place, this);
        label->SetAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setFont(design.Bold ? BoldFont() : PlainFont());
        label->SetCaption(design.Caption);
    }
}

void SetupPanel::MakeControls() {
    PlayNumScroll = new SpinBar("PlayNumScroll", {112, 32, 17, 25}, this);
    PlayNumScroll->SetRange(0, 32767, ScrollForNoPlayers - game.NumPlayers);
    PlayNumScroll->SetCount(
        {.AtZero = ScrollForNoPlayers, .Least = MinPlayers, .Most = MaxPlayers});
    PlayNumScroll->setAccessibleName("Number of Players");
    connect(PlayNumScroll, &QScrollBar::valueChanged, this, &SetupPanel::PlayNumScroll_Change);
    MakeOptions();
    auto* start = new QPushButton("START", this);
    NameAndPlace(*start, "StartGameButton", {136, 152, 53, 22});
    connect(start, &QPushButton::clicked, this, &SetupPanel::StartClicked);
}

void SetupPanel::MakeOptions() {
    const auto make = [this](const char* name, const char* caption, int top) {
        auto* option = new QRadioButton(caption, this);
        NameAndPlace(*option, name, {168, top, 73, 17});
        return option;
    };
    make("OptionNormal", "Normal", 48)->setChecked(true);
    make("OptionExpand", "Expansion", 64)->setEnabled(false);
    make("OptionCustom", "Custom", 80)->setEnabled(false);
}

void SetupPanel::ShowGame() {
    setVisible(!game.Started());
    PlayNumScroll->setValue(ScrollForNoPlayers - game.NumPlayers);
}

// Also runs when the bar is moved to show the game.
void SetupPanel::PlayNumScroll_Change(int value) {
    const int allowed = std::clamp(value, TopOfScroll, BottomOfScroll);
    if (allowed != value) {
        PlayNumScroll->setValue(allowed); // which runs this handler again
        return;
    }
    const int players = ScrollForNoPlayers - value;
    if (players != game.NumPlayers) {
        SetPlayerCount(game, players);
        emit Changed();
    }
}

} // namespace ksm
