// The summary table at the top left: the players in the order of play.
#pragma once

#include "model/game_state.h"
#include "model/per_player.h"

#include <QWidget>

namespace ksm {

class CaptionLabel;

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
    struct Row {
        CaptionLabel* PolPlay = nullptr;
        CaptionLabel* PRes = nullptr;
        CaptionLabel* PInf = nullptr;
    };

    Row MakeRow(int number);

    const Game& game;
    PerPlayer<Row> rows;
};

} // namespace ksm
