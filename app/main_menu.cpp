#include "app/main_menu.h"

#include <QAction>
#include <QMenu>

#include <span>

namespace ksm {

namespace {

enum class Kind { Command, Greyed, Check, GreyedCheck, Separator };

struct ItemDesign {
    const char* Name;
    const char* Caption;
    const char* Shortcut = "";
    ksm::Kind Kind = Kind::Command;
};

constexpr std::array FileItems{
    ItemDesign{"new", "New Game", "", Kind::Greyed},
    ItemDesign{"x", "", "", Kind::Separator},
    ItemDesign{"LGame", "Load Game", "F1"},
    ItemDesign{"SGame", "Save Game", "F2"},
    ItemDesign{"bar1", "", "", Kind::Separator},
    ItemDesign{"LoadPlanButton", "Load Planet List", "", Kind::Greyed},
    ItemDesign{"bar2", "", "", Kind::Separator},
    ItemDesign{"Quit", "E&xit", "Ctrl+X"},
};

constexpr std::array OptionItems{
    ItemDesign{"MenuSound", "Sound", "Ctrl+S", Kind::GreyedCheck},
    ItemDesign{"MenuOrlen", "Orlen house rules", "", Kind::Check},
};

constexpr std::array TechItems{
    ItemDesign{"Stech", "Standard", "F5"},
    ItemDesign{"HTech", "Corrin's End", "F6"},
    ItemDesign{"Indent", "", "", Kind::Separator},
    ItemDesign{"MenuTechMod", "Tech Modifiers"},
};

constexpr std::array LawItems{
    ItemDesign{"MenuLabour", "Labour Union", "", Kind::Check},
    ItemDesign{"MenuStudies", "Subsidized Studies", "", Kind::Greyed},
};

constexpr std::array TradeItems{
    ItemDesign{"Tres", "Economic Independance", "", Kind::Check},
    ItemDesign{"TFree", "Free Trade", "", Kind::Check},
    ItemDesign{"TRestr", "Trade Restrictions", "", Kind::Check},
    ItemDesign{"TStop", "Trade Stop"},
};

// An item without a list stands on the bar itself.
struct BarDesign {
    const char* Name;
    const char* Caption;
    std::span<const ItemDesign> Items;
};

constexpr std::array<BarDesign, 8> Bar{{
    {"File", "&File", FileItems},
    {"MenuOptions", "&Options", OptionItems},
    {"Notes", "&Notes", {}},
    {"Dice", "&Dice Roller", {}},
    {"Techs", "Tech", TechItems},
    {"MenuLaws", "&Laws", LawItems},
    {"Trad", "&Trade", TradeItems},
    {"About", "&About", {}},
}};

void AddItem(QMenu& menu, const ItemDesign& design) {
    QAction* item = menu.addAction(design.Caption);
    item->setObjectName(design.Name);
    item->setSeparator(design.Kind == Kind::Separator);
    item->setShortcut(QKeySequence(design.Shortcut));
    item->setCheckable(design.Kind == Kind::Check || design.Kind == Kind::GreyedCheck);
    item->setChecked(design.Kind == Kind::GreyedCheck);
    item->setEnabled(design.Kind != Kind::Greyed && design.Kind != Kind::GreyedCheck);
}

} // namespace

MainMenu::MainMenu(QWidget* parent) : QMenuBar(parent) {
    for (const BarDesign& design : Bar) {
        if (design.Items.empty()) {
            addAction(design.Caption)->setObjectName(design.Name);
            continue;
        }
        QMenu* menu = addMenu(design.Caption);
        menu->setObjectName(design.Name);
        for (const ItemDesign& item : design.Items) {
            AddItem(*menu, item);
        }
    }
}

QAction* MainMenu::Item(const char* name) const {
    return findChild<QAction*>(QLatin1StringView(name));
}

void MainMenu::ShowLaws(const LawMarks& laws) {
    Item("MenuLabour")->setChecked(laws.LabourUnion);
    Item("MenuOrlen")->setChecked(laws.OrlenHouseRules);
    Item("Tres")->setChecked(laws.EconomicIndependence);
    Item("TFree")->setChecked(laws.FreeTrade);
    Item("TRestr")->setChecked(laws.TradeRestrictions);
}

} // namespace ksm
