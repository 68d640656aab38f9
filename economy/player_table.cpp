#include "economy/player_table.h"

#include "controls/caption_label.h"
#include "controls/focus_group.h"
#include "controls/spin_bar.h"
#include "model/technology.h"

#include <algorithm>

namespace ksm {

namespace {

struct RowHeading {
    const char* Caption = "";
    QRect Place;
    const char* Tip = "";
};

constexpr std::array<RowHeading, 10> RowHeadings{{
    {"Resources", {0, 232, 57, 17}},
    {"Influence", {0, 248, 49, 17}},
    {"Planets", {0, 264, 57, 17}},
    {"Receive Credits", {0, 280, 81, 17}},
    {"Space Docks", {0, 301, 73, 17}},
    {EnviroComp.Caption, {0, 322, 81, 13}, EnviroComp.Tip},
    {PellamTools.Caption, {0, 336, 71, 13}, PellamTools.Tip},
    {MicroTech.Caption, {0, 350, 57, 13}, MicroTech.Tip},
    {"Technology", {0, 392, 65, 18}},
    {"Costs", {0, 408, 65, 18}},
}};

QStringList RaceNames() {
    QStringList names;
    for (int race = 0; race < RaceCount; ++race) {
        names << QLatin1StringView(TraitsOf(static_cast<Race>(race)).Caption);
    }
    return names;
}

} // namespace

PlayerTable::PlayerTable(Game& game, QWidget* window) : QObject(window) {
    for (const RowHeading& heading : RowHeadings) {
        auto* label = new CaptionLabel(QString(), heading.Place, window);
        label->SetAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->SetCaption(heading.Caption);
        label->SetExplanation([&heading] { return std::string(heading.Tip); });
    }
    const QStringList races = RaceNames();
    QList<QWidget*> names;
    QList<QWidget*> docks;
    for (int player = 1; player <= MaxPlayers; ++player) {
        auto* column = new PlayerColumn(game, player, races, window);
        connect(column, &PlayerColumn::Changed, this, &PlayerTable::Changed);
        connect(column, &PlayerColumn::NameClicked, this, &PlayerTable::NameClicked);
        columns[player] = column;
        names << column->Name();
        docks << column->Docks();
    }
    new FocusGroup(names, FocusGroup::Keys::Arrows, this);
    // Up and Down build docks.
    new FocusGroup(docks, FocusGroup::Keys::LeftAndRight, this);
}

void PlayerTable::ShowGame() { std::ranges::for_each(columns, &PlayerColumn::ShowGame); }

} // namespace ksm
