// The planet board: twelve planets of one owner or of all, and the labels of the owners.
#pragma once

#include "planets/board_listing.h"
#include "planets/board_row.h"

#include <QWidget>

#include <map>
#include <vector>

namespace ksm {

class CaptionLabel;
class FramedBar;

/// Picture box `InvasionPic`. Its rows change only when a view is listed; a planet that changes
/// hands elsewhere appears at the next listing.
class PlanetBoard : public QWidget {
    Q_OBJECT

public:
    PlanetBoard(GameState& state, QWidget* parent);

    /// Shows the first page of all planets at start; the owner labels keep their first colours.
    void ShowFirstPage();
    /// Shows the view and the position of the game state, after a game was loaded.
    void ShowGame();

    void PlaceOwner(int player, int top);
    void ShowOwner(int player, bool visible);
    /// Shows the player's name on the owner label.
    void ShowPlayer(int player);

    /// Lists the planets of owner 0..10, or all planets (`AllPlanets`).
    void InvasionPlayer_Click(int owner);

signals:
    /// A planet changed hands.
    void InputChanged();

private:
    void MakeOwners();
    void MakeRows();
    void PlanetScroller_Change(int position);
    void ShowRows();
    void ShowScrollRange();

    void DragTo(int row, QPoint global);
    void DropAt(int row, QPoint global);
    void InvasionPlayer_DragOver(int owner, int row);
    void InvasionPlayer_DragDrop(int owner, int row);
    void InvasionPic_DragDrop();
    void Carry(int row, int step);
    void SetDown(int row);
    void PutBack(int row);
    BoardRow& Label(int row) { return labels.at(static_cast<std::size_t>(row)); }
    /// The index of the visible owner label at this place of the screen, or -1.
    int OwnerAt(QPoint global) const;
    void ClearPlanetMarks();

    GameState& state;
    BoardRows rows = EmptyBoardRows();
    std::map<int, CaptionLabel*> InvasionPlayer; ///< 0..10 and `AllPlanets`
    std::vector<BoardRow> labels;
    FramedBar* PlanetScroller = nullptr;
    int carriedTo = -1; ///< owner under a planet that the keyboard carries, -1 = none
};

} // namespace ksm
