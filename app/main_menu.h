// The menu bar of the main window.
#pragma once

#include "model/game_state.h"

#include <QMenuBar>

namespace ksm {

/// Holds the items with their captions, shortcuts and first states; what they do is connected by
/// the main window, which finds them by name.
class MainMenu : public QMenuBar {
    Q_OBJECT

public:
    explicit MainMenu(QWidget* parent);

    /// The item of this name, such as "Tres".
    QAction* Item(const char* name) const;

    /// Shows the check marks of the laws and house rules.
    void ShowLaws(const LawMarks& laws);
};

} // namespace ksm
