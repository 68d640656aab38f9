// The summary table at the top left: the players in the order of play.
#pragma once

#include "model/game_state.h"
#include "model/per_player.h"

#include <QWidget>

namespace ksm {

class CaptionLabel;
struct TurnOrderColumn;

/// Picture box `UpLefPic`. Row k shows the player ranked k-th, not player k.
class TurnOrderTable : public QWidget {
    Q_OBJECT

public:
    TurnOrderTable(const Game& shown, QWidget* parent);

    /// Shows the players as they were last ranked.
    void ShowGame();
    /// The controls of a row 1..10, which are seen as long as there are that many players.
    QWidgetList PlayerControls(int row) const;

private:
    CaptionLabel* MakeCell(const TurnOrderColumn& column, int number);

    const Game& game;
    PerPlayer<std::array<CaptionLabel*, 3>> rows; ///< name, resources and influence
};

} // namespace ksm
