// The menu bar of the main window.
#pragma once

#include "model/game_state.h"

#include <QMenuBar>

namespace ksm {

/// Holds the items with their captions, shortcuts and first states; what they do is connected by
/// the main window.
class MainMenu : public QMenuBar {
    Q_OBJECT

public:
    MainMenu(const Game& shown, QWidget* parent);

    /// Shows the check marks of the laws and house rules.
    void ShowGame();
    /// Lets the keys of the menus, such as Alt+L, work in another window.
    void WorkIn(QWidget* other);

    // The items that do something. They belong to the menu.
    QAction* LGame = nullptr;
    QAction* SGame = nullptr;
    QAction* Quit = nullptr;
    QAction* MenuOrlen = nullptr;
    QAction* Notes = nullptr;
    QAction* Dice = nullptr;
    QAction* Stech = nullptr;
    QAction* HTech = nullptr;
    QAction* MenuTechMod = nullptr;
    QAction* MenuLabour = nullptr;
    QAction* Tres = nullptr;
    QAction* TFree = nullptr;
    QAction* TRestr = nullptr;
    QAction* TStop = nullptr;
    QAction* About = nullptr;

private:
    void MakeFileMenu();
    void MakeOptionsMenu();
    void MakeTechMenu();
    void MakeLawsMenu();
    void MakeTradeMenu();
    void OpenBy(QAction* item);
    QMenu* MakeMenu(const char* name, const char* caption);
    QAction* MakeBarItem(const char* name, const char* caption);

    const Game& game;
};

} // namespace ksm
