#include "economy/player_column.h"

#include "app/layout.h"
#include "controls/caption_label.h"
#include "controls/choice_box.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "controls/spin_bar.h"
#include "economy/tech_boxes.h"

#include <QCheckBox>

namespace ksm {

namespace {

constexpr ColourPair OnGreen{{0, 128, 0}, White};
constexpr ColourPair OnBlue{{0, 0, 192}, White};
constexpr ColourPair OnRed{{192, 0, 0}, White};
constexpr ColourPair OnYellow{{192, 192, 0}, Black};

void MoveTo(int left, std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) {
        control->move(left, control->y());
    }
}

} // namespace

PlayerColumn::PlayerColumn(GameState& game, int number, const QStringList& races,
                           QWidget* mainWindow)
    : QObject(mainWindow), state(game), player(number), window(mainWindow) {
    MakeNames(races);
    MakeFigures();
    MakeTechnologies();
    ShowPlayer();
    // The design has the columns of ten players.
    Place(LayoutForPlayerCount(MaxPlayers).Columns[player]);
}

QString PlayerColumn::Heading(const char* row) const {
    return QString("%1, Player %2").arg(QLatin1StringView(row)).arg(player);
}

CaptionLabel* PlayerColumn::MakeLabel(const char* name, const char* heading, const QRect& place) {
    auto* label = new CaptionLabel(ElementName(name, player), place, window);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->SetHeading(Heading(heading));
    return label;
}

CaptionLabel* PlayerColumn::MakeFigure(const char* name, const char* heading, int top) {
    CaptionLabel* label = MakeLabel(name, heading, {0, top, 25, 17});
    label->setFont(PlainFont(FigureText));
    // On one line with the row's heading, which stands a little lower.
    label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    label->SetCaption("0");
    return label;
}

CaptionLabel* PlayerColumn::MakeCost(const char* name, const char* heading, int top,
                                     const ColourPair& colours) {
    CaptionLabel* label = MakeLabel(name, heading, {0, top, 25, 16});
    label->setFont(BoldFont(FigureText));
    label->SetColours(colours);
    label->SetCaption("30");
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
    connect(Race, &ChoiceBox::Chosen, this,
            [this](int index) { emit RaceChosen(player, static_cast<ksm::Race>(index)); });
}

void PlayerColumn::MakeFigures() {
    PlayerResources = MakeFigure("PlayerResources", "Resources", 225);
    PlayerInfluence = MakeFigure("PlayerInfluence", "Influence", 241);
    PlayerPlanets = MakeFigure("PlayerPlanets", "Planets", 257);
    PlayerCredits = MakeFigure("PlayerCredits", "Receive Credits", 273);
    PlayerCredits->setFont(BoldFont(FigureText));
    SpaceDocks = MakeFigure("SpaceDocks", "Space Docks", 295);
    SpaceDocks->resize(17, 17);
    SpaceDocks->SetCaption("1");
    DockScroll = new SpinBar(ElementName("DockScroll", player), {0, 290, 17, 25}, window);
    DockScroll->SetRange(0, MaxSpaceDocks, 0);
    DockScroll->SetCount({.AtZero = MaxSpaceDocks, .Least = 0, .Most = MaxSpaceDocks});
    DockScroll->setAccessibleName(Heading("Space Docks"));
    connect(DockScroll, &QScrollBar::valueChanged, this, &PlayerColumn::DockScroll_Change);
}

void PlayerColumn::MakeTechnologies() {
    Enviro = MakeBox("Enviro", "Enviro Comp.", 322);
    PellamTools = MakeBox("PellamTools", "Pellam Tools", 336);
    Micro = MakeBox("Micro", "Micro Tech.", 350);
    EnableTechBoxes();
    connect(Enviro, &QCheckBox::toggled, this, &PlayerColumn::Enviro_Click);
    connect(PellamTools, &QCheckBox::toggled, this, &PlayerColumn::PellamTools_Click);
    connect(Micro, &QCheckBox::toggled, this, &PlayerColumn::Micro_Click);
    PlayerGreenTech = MakeCost("PlayerGreenTech", "Green technology cost", 376, OnGreen);
    PlayerBlueTech = MakeCost("PlayerBlueTech", "Blue technology cost", 392, OnBlue);
    PlayerRedTech = MakeCost("PlayerRedTech", "Red technology cost", 408, OnRed);
    PlayerYellowTech = MakeCost("PlayerYellowTech", "Yellow technology cost", 424, OnYellow);
}

void PlayerColumn::Form_Load() {
    DockScroll->setValue(MaxSpaceDocks - 1);
}

void PlayerColumn::Place(const ColumnPlace& place) {
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

void PlayerColumn::Show(bool visible) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             PlayerName, StatLine, RaceLabel, Race, PlayerResources, PlayerInfluence, PlayerPlanets,
             PlayerCredits, SpaceDocks, DockScroll, Enviro, PellamTools, Micro, PlayerGreenTech,
             PlayerBlueTech, PlayerRedTech, PlayerYellowTech}) {
        control->setVisible(visible);
    }
}

void PlayerColumn::ShowRaceBox(bool visible) {
    Race->setVisible(visible);
}

void PlayerColumn::ShowPlayer() {
    PlayerName->SetCaption(ToQString(PlayerCaption(state, player)));
    PlayerName->SetColours(Inputs().NameColours);
    RaceLabel->SetCaption(QLatin1StringView(Caption(Inputs().Race)));
    Race->ShowChoice(Inputs().Race == ksm::Race::None ? -1 : static_cast<int>(Inputs().Race));
}

void PlayerColumn::ShowValues() {
    const PlayerRecord& record = state.Player(player);
    PlayerResources->SetCaption(QString::number(record.Resources));
    PlayerInfluence->SetCaption(QString::number(record.Influence));
    PlayerPlanets->SetCaption(QString::number(record.PlanetCount));
    PlayerCredits->SetCaption(QString::number(record.Credits));
    PlayerGreenTech->SetCaption(QString::number(record.GreenTech));
    PlayerBlueTech->SetCaption(QString::number(record.BlueTech));
    PlayerRedTech->SetCaption(QString::number(record.RedTech));
    PlayerYellowTech->SetCaption(QString::number(record.YellowTech));
    SpaceDocks->SetCaption(QString::number(Inputs().SpaceDocks));
    DockScroll->setValue(MaxSpaceDocks - Inputs().SpaceDocks);
    Enviro->setChecked(Inputs().Enviro);
    PellamTools->setChecked(Inputs().PellamTools);
    Micro->setChecked(Inputs().Micro);
    EnableTechBoxes();
}

QPoint PlayerColumn::NamePlace() const {
    return PlayerName->pos();
}

// The handlers below also run when ShowValues sets a control: they act on what differs from the
// game only.

void PlayerColumn::DockScroll_Change(int value) {
    const int docks = MaxSpaceDocks - value;
    if (docks != Inputs().SpaceDocks) {
        Inputs().SpaceDocks = docks;
        SpaceDocks->SetCaption(QString::number(docks));
        SpaceDocks_Change();
    }
}

void PlayerColumn::SpaceDocks_Change() {
    emit InputChanged();
}

void PlayerColumn::Enviro_Click(bool checked) {
    if (checked != Inputs().Enviro) {
        Inputs().Enviro = checked;
        emit InputChanged();
        UpdateTechBoxes(Inputs());
        EnableTechBoxes();
    }
}

void PlayerColumn::PellamTools_Click(bool checked) {
    if (checked != Inputs().PellamTools) {
        Inputs().PellamTools = checked;
        emit InputChanged();
    }
}

void PlayerColumn::Micro_Click(bool checked) {
    if (checked != Inputs().Micro) {
        Inputs().Micro = checked;
        emit InputChanged();
    }
}

void PlayerColumn::EnableTechBoxes() {
    PellamTools->setEnabled(Inputs().PellamToolsEnabled);
    Micro->setEnabled(Inputs().MicroEnabled);
}

} // namespace ksm
