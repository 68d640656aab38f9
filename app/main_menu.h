// The menu bar of the main window.
#pragma once

#include "model/game_state.h"

#include <QMenuBar>

namespace ksm {

/// Holds the items with their captions, shortcuts and first states, each found by its name; what
/// they do is connected by the main window.
class MainMenu : public QMenuBar {
    Q_OBJECT

public:
    MainMenu(const Game& shown, QWidget* parent);

    /// Shows the check marks of the laws and house rules.
    void ShowGame();
    /// Lets the keys of the menus, such as Alt+L, work in another window.
    void WorkIn(QWidget* other);

private:
    void OpenBy(QAction* item);

    const Game& game;
    QList<std::pair<QAction*, bool LawMarks::*>> laws;
};

} // namespace ksm
