// The player table: row headings and one column for each player.
#pragma once

#include "economy/player_column.h"
#include "model/per_player.h"

namespace ksm {

/// Its controls stand on the main window itself, without a panel of their own.
class PlayerTable : public QObject {
    Q_OBJECT

public:
    PlayerTable(Game& game, QWidget* window);

    /// Shows the columns of the players in the game.
    void ShowGame();
    const PlayerColumn& Column(int player) const { return *columns[player]; }

signals:
    /// What the user did is done.
    void Changed();
    void NameClicked(int player);

private:
    PerPlayer<PlayerColumn*> columns;
};

} // namespace ksm
