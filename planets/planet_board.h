// The planet board: twelve planets of one owner or of all, and the labels of the owners.
#pragma once

#include "planets/board_listing.h"
#include "planets/board_row.h"

#include <QWidget>

#include <map>
#include <vector>

namespace ksm {

class CaptionLabel;
class FocusGroup;
class FramedBar;
class ShapeFrame;

/// Picture box `InvasionPic`.
class PlanetBoard : public QWidget {
    Q_OBJECT

public:
    PlanetBoard(GameState& game, QWidget* parent);

    /// Shows the owners, the view of the game state and its marks.
    void ShowGame();
    /// What is seen while the player is in the game.
    QWidgetList PlayerControls(int player) const;

signals:
    /// What the user did is done.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// A planet on its way to an owner. It stays the one that was taken, whatever the board lists
    /// meanwhile.
    struct Journey {
        enum class Way { None, Mouse, Keyboard } By = Way::None;
        int Row = 0;
        int Tag = NoPlanet;
        QPoint Grip{};      ///< where the pointer holds the label
        int Over = NoOwner; ///< owner under it
    };

    void MakeOwners();
    void MakeRows();
    void InvasionPlayer_Click(int owner);
    void PlanetScroller_Change(int position);

    void BeginDragging(int row, QPoint grip);
    void DragTo(QPoint global);
    void DropAt(QPoint global);
    void CancelDrag();
    void StopDragging();
    void MoveOutline(QPoint global);
    void InvasionPlayer_DragOver(int owner);
    void InvasionPlayer_DragDrop(int owner, int tag);
    void InvasionPic_DragDrop();

    void PickUpOrSetDown(int row);
    void Carry(int step);
    void PutBack();
    /// Whoever stops it says that something changed.
    void StopCarrying();

    void ShowList();
    void ShowMarks();
    void ShowJourney();
    BoardRow& Row(int row) { return rows.at(static_cast<std::size_t>(row)); }
    bool IsDragging() const { return journey.By == Journey::Way::Mouse; }
    bool IsCarrying() const { return journey.By == Journey::Way::Keyboard; }
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
    ShapeFrame* outline = nullptr; ///< follows the pointer with a dragged planet
    Journey journey;
};

} // namespace ksm
