// One player's column of the player table.
#pragma once

#include "economy/explanation.h"
#include "model/game_state.h"

#include <QObject>
#include <QRect>
#include <QStringList>
#include <QWidget>

class QCheckBox;

namespace ksm {

class CaptionLabel;
class ChoiceBox;
class LineControl;
class SpinBar;
struct Technology;

class PlayerColumn : public QObject {
    Q_OBJECT

public:
    /// `races` are the entries of the race box, in the order of `Race`.
    PlayerColumn(Game& shown, int number, const QStringList& races, QWidget* mainWindow);

    /// Shows a player in the game: the place of the column, and what stands in it.
    void ShowGame();

    CaptionLabel* Name() const { return PlayerName; }
    SpinBar* Docks() const { return DockScroll; }
    /// What is seen while the player is in the game; the race box shows itself.
    QWidgetList PlayerControls() const;

signals:
    /// What the user did is done.
    void Changed();
    void NameClicked(int player);

private:
    void MakeNames(const QStringList& races);
    void MakeFigures();
    void MakeDocks();
    void MakeTechnologies();
    CaptionLabel* MakeLabel(const char* name, const QRect& place);
    QCheckBox* MakeBox(const char* name, const Technology& technology, int top);

    void Race_Click(int index);
    void DockScroll_Change(int value);
    void SpaceDocks_Change();
    void Enviro_Click(bool checked);
    void PellamTools_Click(bool checked);
    void Micro_Click(bool checked);
    void Tick(bool& owned, bool checked);
    void ShowPlace();
    void ShowHeadings();
    void ShowPlayer();
    void ShowValues();

    PlayerRecord& Record() { return game.Player(player); }

    Game& game;
    const int player;
    QWidget* window;
    QString headed; ///< whose column the headings say it is

    CaptionLabel* PlayerName = nullptr;
    LineControl* StatLine = nullptr;
    CaptionLabel* RaceLabel = nullptr;
    ChoiceBox* Race = nullptr;
    std::array<CaptionLabel*, FigureCount> Figures{}; ///< in the order of `Figure`
    CaptionLabel* SpaceDocks = nullptr;
    SpinBar* DockScroll = nullptr;
    QCheckBox* Enviro = nullptr;
    QCheckBox* PellamTools = nullptr;
    QCheckBox* Micro = nullptr;
};

} // namespace ksm
