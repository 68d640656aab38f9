#include "app/setup_panel.h"

#include "controls/caption_label.h"
#include "controls/look.h"
#include "controls/spin_bar.h"

#include <QPushButton>
#include <QRadioButton>

namespace ksm {

namespace {

constexpr QRect Panel{0, 0, 337, 180};

struct LabelDesign {
    const char* Name;
    const char* Caption;
    QRect Place;
    bool Bold;
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

SetupPanel::SetupPanel(GameState& game, QWidget* parent) : QWidget(parent), state(game) {
    setObjectName("GameSetupPic");
    setGeometry(Panel);
    setAutoFillBackground(true);
    MakeLabels();
    MakeControls();
}

void SetupPanel::MakeLabels() {
    for (const LabelDesign& design : Labels) {
        auto* label = new CaptionLabel(design.Name, design.Place, this);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setFont(design.Bold ? BoldFont() : PlainFont());
        label->SetCaption(design.Caption);
    }
}

void SetupPanel::MakeControls() {
    PlayNumScroll = new SpinBar("PlayNumScroll", {112, 32, 17, 25}, this);
    PlayNumScroll->SetRange(0, 32767, 0);
    PlayNumScroll->SetCount(
        {.AtZero = ScrollForNoPlayers, .Least = MinPlayers, .Most = MaxPlayers});
    PlayNumScroll->setAccessibleName("Number of Players");
    connect(PlayNumScroll, &QScrollBar::valueChanged, this, &SetupPanel::PlayNumScroll_Change);
    OptionNormal = MakeOption("OptionNormal", "Normal", 48);
    MakeOption("OptionExpand", "Expansion", 64)->setEnabled(false);
    MakeOption("OptionCustom", "Custom", 80)->setEnabled(false);
    auto* start = new QPushButton("START", this);
    start->setObjectName("StartGameButton");
    start->setGeometry(136, 152, 53, 22);
    connect(start, &QPushButton::clicked, this, &SetupPanel::StartClicked);
}

QRadioButton* SetupPanel::MakeOption(const char* name, const char* caption, int top) {
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(name);
    option->setGeometry(168, top, 73, 17);
    return option;
}

void SetupPanel::Form_Load() {
    OptionNormal->setChecked(true);
    PlayNumScroll->setValue(5);
}

void SetupPanel::ShowGame() {
    PlayNumScroll->setValue(ScrollForNoPlayers - state.NumPlayers);
}

void SetupPanel::PlayNumScroll_Change(int value) {
    // Each write runs this handler again, which then finds the value in range.
    if (value < TopOfScroll) {
        PlayNumScroll->setValue(TopOfScroll);
    } else if (value > BottomOfScroll) {
        PlayNumScroll->setValue(BottomOfScroll);
    }
    state.NumPlayers = ScrollForNoPlayers - PlayNumScroll->value();
    emit PlayerCountChanged();
}

} // namespace ksm
