#include "app/main_menu.h"

#include "controls/accessible_names.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>

#include <vector>

namespace ksm {

namespace {

enum class ItemKind {
    Item,
    Everywhere, ///< its key works in windows beside the main window, too
    Greyed,     ///< has no action and never gets one
    Separator
};

struct ItemDesign {
    const char* Name = "";
    const char* Caption = "";
    const char* Shortcut = "";
    ItemKind Kind = ItemKind::Item;
    bool LawMarks::* Law = nullptr; ///< whose check mark it has
};

/// A menu, or an item on the bar where nothing is in it.
struct MenuDesign {
    const char* Name = "";
    const char* Caption = "";
    std::vector<ItemDesign> Items{};
};

std::vector<MenuDesign> Design() {
    using enum ItemKind;
    return {
        {"File",
         "&File",
         {{"new", "New Game", "", Greyed},
          {"x", "", "", Separator},
          {"LGame", "Load Game", "F1", Everywhere},
          {"SGame", "Save Game", "F2", Everywhere},
          {"bar1", "", "", Separator},
          {"LoadPlanButton", "Load Planet List", "", Greyed},
          {"bar2", "", "", Separator},
          {"Quit", "E&xit", "Ctrl+X"}}},
        {"MenuOptions",
         "&Options",
         {{"MenuSound", "Sound", "Ctrl+S", Greyed},
          {"MenuOrlen", "Orlen house rules", "", Item, &LawMarks::OrlenHouseRules}}},
        {"Notes", "&Notes"},
        {"Dice", "&Dice Roller"},
        {"Techs",
         "Tech",
         {{"Stech", "Standard", "F5", Everywhere},
          {"HTech", "Corrin's End", "F6", Everywhere},
          {"Indent", "", "", Separator},
          {"MenuTechMod", "Tech Modifiers"}}},
        {"MenuLaws",
         "&Laws",
         {{"MenuLabour", "Labour Union", "", Item, &LawMarks::LabourUnion},
          {"MenuStudies", "Subsidized Studies", "", Greyed}}},
        {"Trad",
         "&Trade",
         {{"Tres", "Economic Independance", "", Item, &LawMarks::EconomicIndependence},
          {"TFree", "Free Trade", "", Item, &LawMarks::FreeTrade},
          {"TRestr", "Trade Restrictions", "", Item, &LawMarks::TradeRestrictions},
          {"TStop", "Trade Stop"}}},
        {"About", "&About"},
    };
}

QAction* MakeItem(QMenu* menu, const ItemDesign& design) {
    QAction* item =
        design.Kind == ItemKind::Separator ? menu->addSeparator() : menu->addAction(design.Caption);
    item->setObjectName(design.Name);
    item->setShortcut(QKeySequence(design.Shortcut));
    item->setEnabled(design.Kind != ItemKind::Greyed);
    item->setCheckable(design.Law != nullptr);
    if (design.Kind == ItemKind::Everywhere) {
        item->setShortcutContext(Qt::ApplicationShortcut);
    }
    return item;
}

} // namespace

MainMenu::MainMenu(const Game& shown, QWidget* parent) : QMenuBar(parent), game(shown) {
    for (const MenuDesign& design : Design()) {
        if (design.Items.empty()) {
            addAction(design.Caption)->setObjectName(design.Name);
            continue;
        }
        QMenu* menu = addMenu(design.Caption);
        menu->setObjectName(design.Name);
        for (const ItemDesign& item : design.Items) {
            QAction* made = MakeItem(menu, item);
            if (item.Law) {
                laws.append({made, item.Law});
                AnnounceCheckMark(*made, *this);
            }
        }
    }
    auto* sound = findChild<QAction*>("MenuSound");
    sound->setCheckable(true);
    sound->setChecked(true);
}

void MainMenu::OpenBy(QAction* item) {
    window()->activateWindow();
    if (item->menu()) {
        setActiveAction(item);
    } else {
        item->trigger();
    }
}

void MainMenu::WorkIn(QWidget* other) {
    for (QAction* item : actions()) {
        const QKeySequence key = QKeySequence::mnemonic(item->text());
        if (!key.isEmpty()) {
            connect(new QShortcut(key, other), &QShortcut::activated, this,
                    [this, item] { OpenBy(item); });
        }
    }
}

void MainMenu::ShowGame() {
    for (const auto& [item, law] : laws) {
        item->setChecked(game.Laws.*law);
    }
}

} // namespace ksm
