// The planet board: twelve planets of one owner or of all, and the labels of the owners.
#pragma once

#include "planets/board_listing.h"
#include "planets/board_row.h"

#include <QWidget>

#include <map>
#include <optional>
#include <vector>

namespace ksm {

class CaptionLabel;
class FocusGroup;
class FramedBar;

/// Picture box `InvasionPic`. Its rows change only when a view is listed; a planet that changes
/// hands elsewhere appears at the next listing.
class PlanetBoard : public QWidget {
    Q_OBJECT

public:
    PlanetBoard(GameState& game, QWidget* parent);

    /// Shows the view of the game state with its marks.
    void ShowGame();

    /// Places the player's owner label for the number of players.
    void PlaceOwner(int player);
    void SetOwnerVisible(int player, bool visible);
    /// Shows the player's name on the owner label.
    void ShowPlayer(int player);

signals:
    /// A planet changed hands: the figures are recomputed and shown before this returns.
    void InputChanged();
    /// What the user did is done.
    void Changed();

private:
    /// A planet on its way, by mouse or by keyboard. It stays the one that was taken, whatever the
    /// board lists meanwhile.
    struct Journey {
        int Row;
        int Tag;
        int Over = NoOwner; ///< owner under it
    };

    void MakeOwners();
    void MakeRows();
    void InvasionPlayer_Click(int owner);
    void PlanetScroller_Change(int position);
    void List(int owner);

    void Take(int row);
    void DragTo(QPoint global);
    void DropAt(QPoint global);
    void CancelDrag();
    void InvasionPlayer_DragOver(int owner, Journey& journey);
    void InvasionPlayer_DragDrop(int owner, const Journey& journey);
    void InvasionPic_DragDrop();

    void PickUpOrSetDown(int row);
    void Carry(int step);
    void PutBack();
    void EndCarrying();

    void ShowList();
    void ShowMarks();
    BoardRow& Row(int row) { return rows.at(static_cast<std::size_t>(row)); }
    /// The panel or its control that is seen at this place of the screen, or null.
    const QWidget* SeenAt(QPoint global) const;
    /// The index of the owner label that this is, or `NoOwner`.
    int OwnerOf(const QWidget* control) const;
    /// Whether this is nothing but the board. An empty row counts as the board.
    bool IsBare(const QWidget* control) const;

    GameState& state;
    std::map<int, CaptionLabel*> InvasionPlayer; ///< 0..10 and `AllPlanets`
    std::vector<BoardRow> rows;
    FocusGroup* planets = nullptr;
    FramedBar* PlanetScroller = nullptr;
    std::optional<Journey> dragged; ///< by the mouse
    std::optional<Journey> carried; ///< by the keyboard
};

} // namespace ksm
