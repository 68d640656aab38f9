#include "app/main_menu.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>

namespace ksm {

namespace {

QAction* MakeItem(QMenu* menu, const char* name, const char* caption, const char* shortcut = "") {
    QAction* item = menu->addAction(caption);
    item->setObjectName(name);
    item->setShortcut(QKeySequence(shortcut));
    return item;
}

/// An item whose key works in windows beside the main window too.
QAction* MakeEverywhere(QMenu* menu, const char* name, const char* caption, const char* shortcut) {
    QAction* item = MakeItem(menu, name, caption, shortcut);
    item->setShortcutContext(Qt::ApplicationShortcut);
    return item;
}

QAction* MakeCheckItem(QMenu* menu, const char* name, const char* caption) {
    QAction* item = MakeItem(menu, name, caption);
    item->setCheckable(true);
    return item;
}

void MakeSeparator(QMenu* menu, const char* name) {
    menu->addSeparator()->setObjectName(name);
}

} // namespace

MainMenu::MainMenu(const Game& shown, QWidget* parent) : QMenuBar(parent), game(shown) {
    MakeFileMenu();
    MakeOptionsMenu();
    Notes = MakeBarItem("Notes", "&Notes");
    Dice = MakeBarItem("Dice", "&Dice Roller");
    MakeTechMenu();
    MakeLawsMenu();
    MakeTradeMenu();
    About = MakeBarItem("About", "&About");
}

// Greyed items have no action and never get one.

void MainMenu::MakeFileMenu() {
    QMenu* menu = MakeMenu("File", "&File");
    MakeItem(menu, "new", "New Game")->setEnabled(false);
    MakeSeparator(menu, "x");
    LGame = MakeEverywhere(menu, "LGame", "Load Game", "F1");
    SGame = MakeEverywhere(menu, "SGame", "Save Game", "F2");
    MakeSeparator(menu, "bar1");
    MakeItem(menu, "LoadPlanButton", "Load Planet List")->setEnabled(false);
    MakeSeparator(menu, "bar2");
    Quit = MakeItem(menu, "Quit", "E&xit", "Ctrl+X");
}

void MainMenu::MakeOptionsMenu() {
    QMenu* menu = MakeMenu("MenuOptions", "&Options");
    QAction* sound = MakeItem(menu, "MenuSound", "Sound", "Ctrl+S");
    sound->setCheckable(true);
    sound->setChecked(true);
    sound->setEnabled(false);
    MenuOrlen = MakeCheckItem(menu, "MenuOrlen", "Orlen house rules");
}

void MainMenu::MakeTechMenu() {
    QMenu* menu = MakeMenu("Techs", "Tech");
    Stech = MakeEverywhere(menu, "Stech", "Standard", "F5");
    HTech = MakeEverywhere(menu, "HTech", "Corrin's End", "F6");
    MakeSeparator(menu, "Indent");
    MenuTechMod = MakeItem(menu, "MenuTechMod", "Tech Modifiers");
}

void MainMenu::MakeLawsMenu() {
    QMenu* menu = MakeMenu("MenuLaws", "&Laws");
    MenuLabour = MakeCheckItem(menu, "MenuLabour", "Labour Union");
    MakeItem(menu, "MenuStudies", "Subsidized Studies")->setEnabled(false);
}

void MainMenu::MakeTradeMenu() {
    QMenu* menu = MakeMenu("Trad", "&Trade");
    Tres = MakeCheckItem(menu, "Tres", "Economic Independance");
    TFree = MakeCheckItem(menu, "TFree", "Free Trade");
    TRestr = MakeCheckItem(menu, "TRestr", "Trade Restrictions");
    TStop = MakeItem(menu, "TStop", "Trade Stop");
}

QMenu* MainMenu::MakeMenu(const char* name, const char* caption) {
    QMenu* menu = addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* MainMenu::MakeBarItem(const char* name, const char* caption) {
    QAction* item = addAction(caption);
    item->setObjectName(name);
    return item;
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
    const LawMarks& laws = game.Laws;
    MenuLabour->setChecked(laws.LabourUnion);
    MenuOrlen->setChecked(laws.OrlenHouseRules);
    Tres->setChecked(laws.EconomicIndependence);
    TFree->setChecked(laws.FreeTrade);
    TRestr->setChecked(laws.TradeRestrictions);
}

} // namespace ksm
