#include "economy/player_column.h"

#include "controls/caption_label.h"
#include "controls/choice_box.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "controls/spin_bar.h"
#include "economy/column_place.h"
#include "economy/game_setup.h"
#include "economy/tech_boxes.h"
#include "model/player_labels.h"

#include <QCheckBox>

namespace ksm {

namespace {

constexpr ColourPair OnGreen{colour::DarkGreen, colour::White};
constexpr ColourPair OnBlue{colour::DarkBlue, colour::White};
constexpr ColourPair OnRed{colour::DarkRed, colour::White};
constexpr ColourPair OnYellow{colour::DarkYellow, colour::Black};

void MoveTo(int left, std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) {
        control->move(left, control->y());
    }
}

} // namespace

PlayerColumn::PlayerColumn(Game& shown, int number, const QStringList& races, QWidget* mainWindow)
    : QObject(mainWindow), game(shown), player(number), window(mainWindow) {
    MakeNames(races);
    MakeFigures();
    MakeTechnologies();
}

QString PlayerColumn::Heading(const char* row) const {
    return QString("%1, Player %2").arg(QLatin1StringView(row)).arg(player);
}

CaptionLabel* PlayerColumn::MakeLabel(const char* name, const char* heading, const QRect& place) {
    auto* label = new CaptionLabel(ElementName(name, player), place, window);
    label->SetAlignment(Qt::AlignCenter);
    label->SetHeading(Heading(heading));
    return label;
}

CaptionLabel* PlayerColumn::MakeFigure(const char* name, const char* heading, int top) {
    CaptionLabel* label = MakeLabel(name, heading, {0, top, 25, 17});
    label->setFont(PlainFont(FigureText));
    // On one line with the row's heading, which stands a little lower.
    label->SetAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    return label;
}

CaptionLabel* PlayerColumn::MakeCost(const char* name, const char* heading, int top,
                                     const ColourPair& colours) {
    CaptionLabel* label = MakeLabel(name, heading, {0, top, 25, 16});
    label->setFont(BoldFont(FigureText));
    label->SetColours(colours);
    return label;
}

QCheckBox* PlayerColumn::MakeBox(const char* name, const char* heading, int top) {
    auto* box = new QCheckBox(window);
    box->setObjectName(ElementName(name, player));
    box->setGeometry(0, top, 17, 17);
    box->setAccessibleName(Heading(heading));
    return box;
}

void PlayerColumn::MakeNames(const QStringList& races) {
    // The line of the eighth column reaches up into the row of names.
    const int lineTop = player == 8 ? 192 : 200;
    StatLine =
        new LineControl(ElementName("StatLine", player), {0, lineTop, 1, 440 - lineTop}, window);
    PlayerName = MakeLabel("PlayerName", "Name", {0, 184, 55, 18});
    PlayerName->MakeClickable();
    RaceLabel = MakeLabel("RaceLabel", "Race", {0, 205, 55, 16});
    Race = new ChoiceBox(ElementName("Race", player), "Race", races, window);
    Race->setGeometry(0, 205, 54, 21);
    Race->SetHeading(Heading("Race"));
    connect(PlayerName, &CaptionLabel::Clicked, this, [this] { emit NameClicked(player); });
    connect(Race, &ChoiceBox::Chosen, this, &PlayerColumn::Race_Click);
}

void PlayerColumn::MakeFigures() {
    PlayerResources = MakeFigure("PlayerResources", "Resources", 225);
    PlayerInfluence = MakeFigure("PlayerInfluence", "Influence", 241);
    PlayerPlanets = MakeFigure("PlayerPlanets", "Planets", 257);
    PlayerCredits = MakeFigure("PlayerCredits", "Receive Credits", 273);
    PlayerCredits->setFont(BoldFont(FigureText));
    SpaceDocks = MakeFigure("SpaceDocks", "Space Docks", 295);
    SpaceDocks->resize(17, 17);
    DockScroll = new SpinBar(ElementName("DockScroll", player), {0, 290, 17, 25}, window);
    DockScroll->SetCount({.AtZero = MaxSpaceDocks, .Least = 0, .Most = MaxSpaceDocks});
    DockScroll->SetRange(0, MaxSpaceDocks, MaxSpaceDocks - Record().SpaceDocks);
    DockScroll->setAccessibleName(Heading("Space Docks"));
    connect(DockScroll, &QScrollBar::valueChanged, this, &PlayerColumn::DockScroll_Change);
}

void PlayerColumn::MakeTechnologies() {
    Enviro = MakeBox("Enviro", "Enviro Comp.", 322);
    PellamTools = MakeBox("PellamTools", "Pellam Tools", 336);
    Micro = MakeBox("Micro", "Micro Tech.", 350);
    connect(Enviro, &QCheckBox::toggled, this, &PlayerColumn::Enviro_Click);
    connect(PellamTools, &QCheckBox::toggled, this, &PlayerColumn::PellamTools_Click);
    connect(Micro, &QCheckBox::toggled, this, &PlayerColumn::Micro_Click);
    PlayerGreenTech = MakeCost("PlayerGreenTech", "Green technology cost", 376, OnGreen);
    PlayerBlueTech = MakeCost("PlayerBlueTech", "Blue technology cost", 392, OnBlue);
    PlayerRedTech = MakeCost("PlayerRedTech", "Red technology cost", 408, OnRed);
    PlayerYellowTech = MakeCost("PlayerYellowTech", "Yellow technology cost", 424, OnYellow);
}

void PlayerColumn::Place() {
    const ColumnPlace place = PlaceOfColumn(player, game.NumPlayers);
    PlayerName->setGeometry(place.Left, PlayerName->y(), place.NameWidth, PlayerName->height());
    RaceLabel->setGeometry(place.Left, RaceLabel->y(), place.NameWidth, RaceLabel->height());
    Race->setGeometry(place.Left + 1, Race->y(), place.RaceWidth, Race->height());
    MoveTo(place.Left, {StatLine});
    MoveTo(place.FigureLeft, {PlayerResources, PlayerInfluence, PlayerPlanets, PlayerCredits,
                              PlayerGreenTech, PlayerBlueTech, PlayerRedTech, PlayerYellowTech});
    MoveTo(place.FigureLeft + 3, {SpaceDocks});
    MoveTo(place.FigureLeft + 19, {DockScroll});
    MoveTo(place.FigureLeft + 6, {Enviro, PellamTools, Micro});
}

void PlayerColumn::SetVisible(bool visible) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             PlayerName, StatLine, RaceLabel, PlayerResources, PlayerInfluence, PlayerPlanets,
             PlayerCredits, SpaceDocks, DockScroll, Enviro, PellamTools, Micro, PlayerGreenTech,
             PlayerBlueTech, PlayerRedTech, PlayerYellowTech}) {
        control->setVisible(visible);
    }
    ShowPhase();
}

void PlayerColumn::ShowPhase() {
    Race->setVisible(!game.Started && player <= game.NumPlayers);
}

void PlayerColumn::ShowPlayer() {
    PlayerName->SetCaption(QString::fromStdString(PlayerCaption(game, player)));
    PlayerName->SetColours(Record().NameColours);
    RaceLabel->SetCaption(QLatin1StringView(TraitsOf(Record().Race).Caption));
    Race->ShowChoice(Record().Race == ksm::Race::None ? -1 : static_cast<int>(Record().Race));
}

void PlayerColumn::ShowValues() {
    PlayerResources->SetCaption(QString::number(Record().Resources));
    PlayerInfluence->SetCaption(QString::number(Record().Influence));
    PlayerPlanets->SetCaption(QString::number(Record().PlanetCount));
    PlayerCredits->SetCaption(QString::number(Record().Credits));
    PlayerGreenTech->SetCaption(QString::number(Record().GreenTech));
    PlayerBlueTech->SetCaption(QString::number(Record().BlueTech));
    PlayerRedTech->SetCaption(QString::number(Record().RedTech));
    PlayerYellowTech->SetCaption(QString::number(Record().YellowTech));
    SpaceDocks->SetCaption(QString::number(Record().SpaceDocks));
    DockScroll->setValue(MaxSpaceDocks - Record().SpaceDocks);
    ShowTechBoxes();
}

void PlayerColumn::ShowTechBoxes() {
    Enviro->setChecked(Record().Enviro);
    PellamTools->setChecked(Record().PellamTools);
    PellamTools->setEnabled(Record().PellamToolsEnabled);
    Micro->setChecked(Record().Micro);
    Micro->setEnabled(Record().MicroEnabled);
}

QPoint PlayerColumn::NamePlace() const {
    return PlayerName->pos();
}

void PlayerColumn::Race_Click(int index) {
    ChooseRace(game, player, static_cast<ksm::Race>(index));
    ShowPlayer();
    emit InputChanged();
    emit Changed();
}

// The handlers below also run when a control is set to show the game: they act on what differs from
// the game only.

void PlayerColumn::DockScroll_Change(int value) {
    const int docks = MaxSpaceDocks - value;
    if (docks != Record().SpaceDocks) {
        Record().SpaceDocks = docks;
        SpaceDocks->SetCaption(QString::number(docks));
        SpaceDocks_Change();
    }
}

void PlayerColumn::SpaceDocks_Change() {
    emit InputChanged();
    emit Changed();
}

void PlayerColumn::Enviro_Click(bool checked) {
    if (checked != Record().Enviro) {
        Record().Enviro = checked;
        emit InputChanged();
        UpdateTechBoxes(Record());
        ShowTechBoxes();
        emit Changed();
    }
}

void PlayerColumn::PellamTools_Click(bool checked) {
    if (checked != Record().PellamTools) {
        Record().PellamTools = checked;
        emit InputChanged();
        emit Changed();
    }
}

void PlayerColumn::Micro_Click(bool checked) {
    if (checked != Record().Micro) {
        Record().Micro = checked;
        emit InputChanged();
        emit Changed();
    }
}

} // namespace ksm
