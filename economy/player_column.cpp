#include "economy/player_column.h"

#include "controls/caption_label.h"
#include "controls/choice_box.h"
#include "controls/element_name.h"
#include "controls/focus_group.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "controls/spin_bar.h"
#include "economy/column_place.h"
#include "economy/game_setup.h"
#include "economy/recompute.h"
#include "economy/tech_boxes.h"
#include "model/player_labels.h"
#include "model/technology.h"

#include <QCheckBox>

#include <optional>

namespace ksm {

namespace {

struct FigureDesign {
    const char* Name = "";
    const char* Heading = "";
    int Top = 0;
    int Height = 17;
    bool Bold = false;
    std::optional<ColourPair> Colours{}; ///< of the costs
};

// In the order of `Figure`.
constexpr std::array<FigureDesign, FigureCount> FigureDesigns{{
    {"PlayerResources", "Resources", 225},
    {"PlayerInfluence", "Influence", 241},
    {"PlayerPlanets", "Planets", 257},
    {"PlayerCredits", "Receive Credits", 273, 17, true},
    {"PlayerGreenTech", "Green technology cost", 376, 16, true,
     ColourPair{colour::DarkGreen, colour::White}},
    {"PlayerBlueTech", "Blue technology cost", 392, 16, true,
     ColourPair{colour::DarkBlue, colour::White}},
    {"PlayerRedTech", "Red technology cost", 408, 16, true,
     ColourPair{colour::DarkRed, colour::White}},
    {"PlayerYellowTech", "Yellow technology cost", 424, 16, true,
     ColourPair{colour::DarkYellow, colour::Black}},
}};

void MoveTo(int left, const QWidgetList& controls) {
    for (QWidget* control : controls) {
        control->move(left, control->y());
    }
}

} // namespace

PlayerColumn::PlayerColumn(Game& shown, int number, const QStringList& races, QWidget* mainWindow)
    : QObject(mainWindow), game(shown), player(number), window(mainWindow) {
    MakeNames(races);
    MakeFigures();
    MakeDocks();
    MakeTechnologies();
}

CaptionLabel* PlayerColumn::MakeLabel(const char* name, const QRect& place) {
    auto* label = new CaptionLabel(ElementName(name, player), place, window);
    label->SetAlignment(Qt::AlignCenter);
    return label;
}

QCheckBox* PlayerColumn::MakeBox(const char* name, const Technology& technology, int top) {
    auto* box = new QCheckBox(window);
    NameAndPlace(*box, ElementName(name, player), {0, top, 17, 17});
    box->setToolTip(technology.Tip);
    return box;
}

void PlayerColumn::MakeNames(const QStringList& races) {
    // The line of the eighth column reaches up into the row of names.
    const int lineTop = player == 8 ? 192 : 200;
    StatLine =
        new LineControl(ElementName("StatLine", player), {0, lineTop, 1, 440 - lineTop}, window);
    PlayerName = MakeLabel("PlayerName", {0, 184, 55, 18});
    PlayerName->SetHeading(QString("Name, Player %1").arg(player));
    PlayerName->MakeClickable();
    RaceLabel = MakeLabel("RaceLabel", {0, 205, 55, 16});
    Race = new ChoiceBox(ElementName("Race", player), "Race", races, window);
    Race->setGeometry(0, 205, 54, 21);
    connect(PlayerName, &CaptionLabel::Clicked, this, [this] { emit NameClicked(player); });
    connect(Race, &ChoiceBox::Chosen, this, &PlayerColumn::Race_Click);
}

void PlayerColumn::MakeFigures() {
    for (std::size_t index = 0; index < Figures.size(); ++index) {
        const FigureDesign& design = FigureDesigns.at(index);
        const auto figure = static_cast<Figure>(index);
        CaptionLabel* label = MakeLabel(design.Name, {0, design.Top, 25, design.Height});
        label->setFont(design.Bold ? BoldFont(FigureText) : PlainFont(FigureText));
        label->SetSmallestText(8); // in which figures of five digits fit
        label->SetExplanation([this, figure] { return ExplanationText(game, player, figure); });
        if (design.Colours) {
            label->SetColours(*design.Colours);
        } else {
            // On one line with the row's heading, which stands a little lower.
            label->SetAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        }
        Figures.at(index) = label;
    }
}

void PlayerColumn::MakeDocks() {
    SpaceDocks = MakeLabel("SpaceDocks", {0, 295, 17, 17});
    SpaceDocks->setFont(PlainFont(FigureText));
    SpaceDocks->SetAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    SpaceDocks->SetExplanation([this] { return DockText(game, player); });
    DockScroll = new SpinBar(ElementName("DockScroll", player), {0, 290, 17, 25}, window);
    DockScroll->SetCount({.AtZero = MaxSpaceDocks, .Least = 0, .Most = MaxSpaceDocks});
    DockScroll->SetRange(0, MaxSpaceDocks, MaxSpaceDocks - Record().SpaceDocks);
    connect(DockScroll, &QScrollBar::valueChanged, this, &PlayerColumn::DockScroll_Change);
}

void PlayerColumn::MakeTechnologies() {
    Enviro = MakeBox("Enviro", EnviroComp, 322);
    PellamTools = MakeBox("PellamTools", ksm::PellamTools, 336);
    Micro = MakeBox("Micro", MicroTech, 350);
    new FocusGroup({Enviro, PellamTools, Micro}, FocusGroup::Keys::Arrows, this);
    connect(Enviro, &QCheckBox::toggled, this, &PlayerColumn::Enviro_Click);
    connect(PellamTools, &QCheckBox::toggled, this, &PlayerColumn::PellamTools_Click);
    connect(Micro, &QCheckBox::toggled, this, &PlayerColumn::Micro_Click);
}

void PlayerColumn::ShowGame() {
    const bool inGame = player <= game.NumPlayers;
    // It lies over the race label until the game starts.
    Race->setVisible(inGame && !game.Started());
    if (inGame) {
        ShowPlace();
        ShowHeadings();
        ShowPlayer();
        ShowValues();
    }
}

void PlayerColumn::ShowPlace() {
    const ColumnPlace place = PlaceOfColumn(player, game.NumPlayers);
    PlayerName->setGeometry(place.Left, PlayerName->y(), place.NameWidth, PlayerName->height());
    RaceLabel->setGeometry(place.Left, RaceLabel->y(), place.NameWidth, RaceLabel->height());
    Race->setGeometry(place.Left + 1, Race->y(), place.RaceWidth, Race->height());
    MoveTo(place.Left, {StatLine});
    MoveTo(place.FigureLeft, {Figures.begin(), Figures.end()});
    MoveTo(place.FigureLeft + 3, {SpaceDocks});
    MoveTo(place.FigureLeft + 19, {DockScroll});
    MoveTo(place.FigureLeft + 6, {Enviro, PellamTools, Micro});
}

/// What assistive technology says before a figure: "Influence, Ada".
void PlayerColumn::ShowHeadings() {
    const QString who = Record().Name.empty() ? QString("Player %1").arg(player)
                                              : QString::fromStdString(Record().Name);
    if (who == headed) {
        return;
    }
    headed = who;
    const auto heading = [&](const char* row) { return QLatin1StringView(row) + ", " + who; };
    RaceLabel->SetHeading(heading("Race"));
    Race->SetHeading(heading("Race"));
    for (std::size_t index = 0; index < Figures.size(); ++index) {
        Figures.at(index)->SetHeading(heading(FigureDesigns.at(index).Heading));
    }
    SpaceDocks->SetHeading(heading("Space Docks"));
    DockScroll->setAccessibleName(heading("Space Docks"));
    Enviro->setAccessibleName(heading(EnviroComp.Caption));
    PellamTools->setAccessibleName(heading(ksm::PellamTools.Caption));
    Micro->setAccessibleName(heading(MicroTech.Caption));
}

void PlayerColumn::ShowPlayer() {
    PlayerName->SetCaption(QString::fromStdString(PlayerCaption(game, player)));
    PlayerName->SetColours(Record().NameColours);
    RaceLabel->SetCaption(QLatin1StringView(TraitsOf(Record().Race).Caption));
    Race->ShowChoice(Record().Race == ksm::Race::None ? -1 : static_cast<int>(Record().Race));
}

void PlayerColumn::ShowValues() {
    for (std::size_t index = 0; index < Figures.size(); ++index) {
        const int value = ValueOf(game, player, static_cast<Figure>(index));
        Figures.at(index)->SetCaption(QString::number(value));
    }
    SpaceDocks->SetCaption(QString::number(Record().SpaceDocks));
    DockScroll->setValue(MaxSpaceDocks - Record().SpaceDocks);
    Enviro->setChecked(Record().Enviro);
    PellamTools->setChecked(Record().PellamTools);
    PellamTools->setEnabled(Record().PellamToolsEnabled);
    Micro->setChecked(Record().Micro);
    Micro->setEnabled(Record().MicroEnabled);
}

QWidgetList PlayerColumn::PlayerControls() const {
    QWidgetList controls{PlayerName, StatLine, RaceLabel,   SpaceDocks,
                         DockScroll, Enviro,   PellamTools, Micro};
    controls.append({Figures.begin(), Figures.end()});
    return controls;
}

void PlayerColumn::Race_Click(int index) {
    ChooseRace(game, player, static_cast<ksm::Race>(index));
    Recompute(game);
    emit Changed();
}

// The handlers below also run when a control is set to show the game: they act on what differs from
// the game only.

void PlayerColumn::DockScroll_Change(int value) {
    const int docks = MaxSpaceDocks - value;
    if (docks != Record().SpaceDocks) {
        Record().SpaceDocks = docks;
        SpaceDocks_Change();
    }
}

void PlayerColumn::SpaceDocks_Change() {
    Recompute(game);
    emit Changed();
}

void PlayerColumn::Enviro_Click(bool checked) {
    if (checked != Record().Enviro) {
        Record().Enviro = checked;
        Recompute(game);
        UpdateTechBoxes(Record());
        emit Changed();
    }
}

void PlayerColumn::PellamTools_Click(bool checked) { Tick(Record().PellamTools, checked); }

void PlayerColumn::Micro_Click(bool checked) { Tick(Record().Micro, checked); }

void PlayerColumn::Tick(bool& owned, bool checked) {
    if (checked != owned) {
        owned = checked;
        Recompute(game);
        emit Changed();
    }
}

} // namespace ksm
