// The summary table at the top left: the players in the order of play.
#pragma once

#include "economy/turn_order.h"

#include <QWidget>

namespace ksm {

class CaptionLabel;

/// Picture box `UpLefPic`. Row k shows the player ranked k-th, not player k.
class TurnOrderTable : public QWidget {
    Q_OBJECT

public:
    TurnOrderTable(const GameState& state, QWidget* parent);

    /// Ranks the players and rewrites all ten rows.
    void ShowTurnOrder();
    void ShowRow(int row, bool visible);

private:
    struct Row {
        CaptionLabel* PolPlay = nullptr;
        CaptionLabel* PRes = nullptr;
        CaptionLabel* PInf = nullptr;
    };

    Row MakeRow(int number);

    const GameState& state;
    PerPlayer<Row> rows;
};

} // namespace ksm
