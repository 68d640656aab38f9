// The player table: row headings and one column for each player.
#pragma once

#include "economy/player_column.h"

namespace ksm {

/// Its controls stand on the main window itself, without a panel of their own.
class PlayerTable : public QObject {
    Q_OBJECT

public:
    PlayerTable(GameState& state, QWidget* window);

    PlayerColumn& Column(int player) { return *columns[player]; }

    /// Writes the space docks of every player as the user's hand would.
    void Form_Load();
    /// Shows the figures, docks and technologies of all players.
    void ShowValues();

signals:
    void InputChanged();
    void RaceChosen(int player, ksm::Race race);
    void NameClicked(int player);

private:
    PerPlayer<PlayerColumn*> columns;
};

} // namespace ksm
