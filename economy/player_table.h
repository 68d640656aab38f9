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

    PlayerColumn& Column(int player) { return *columns[player]; }

    /// Shows the race boxes until the game starts.
    void ShowPhase();
    /// Shows the figures, docks and technologies of all players.
    void ShowValues();

signals:
    /// An input of the figures changed: they are recomputed and shown before this returns.
    void InputChanged();
    /// What the user did is done.
    void Changed();
    void NameClicked(int player);

private:
    PerPlayer<PlayerColumn*> columns;
};

} // namespace ksm
