// One player's column of the player table.
#pragma once

#include "economy/explanation.h"
#include "model/game_state.h"

#include <QObject>
#include <QRect>
#include <QStringList>

class QCheckBox;
class QWidget;

namespace ksm {

class CaptionLabel;
class ChoiceBox;
class LineControl;
class SpinBar;

class PlayerColumn : public QObject {
    Q_OBJECT

public:
    /// `races` are the entries of the race box, in the order of `Race`.
    PlayerColumn(Game& shown, int number, const QStringList& races, QWidget* mainWindow);

    /// Places the column for the number of players.
    void Place();
    /// Shows or hides every control of the column.
    void SetVisible(bool visible);
    /// The race box of a player in the game lies over the race label until the game starts.
    void ShowPhase();

    /// Shows name, colours and race.
    void ShowPlayer();
    /// Shows figures, docks and technologies.
    void ShowValues();

    QWidget* Name() const;
    QWidget* Docks() const;
    /// Top left corner of the name label, in pixels of the window.
    QPoint NamePlace() const;

signals:
    /// An input of the figures changed: they are recomputed and shown before this returns.
    void InputChanged();
    /// What the user did is done.
    void Changed();
    void NameClicked(int player);

private:
    void MakeNames(const QStringList& races);
    void MakeFigures();
    void MakeDocks();
    void MakeTechnologies();
    CaptionLabel* MakeLabel(const char* name, const char* heading, const QRect& place);
    QCheckBox* MakeBox(const char* name, const char* heading, int top);
    QString Heading(const char* row) const;

    void Race_Click(int index);
    void DockScroll_Change(int value);
    void SpaceDocks_Change();
    void Enviro_Click(bool checked);
    void PellamTools_Click(bool checked);
    void Micro_Click(bool checked);
    void ShowTechBoxes();

    PlayerRecord& Record() { return game.Player(player); }

    Game& game;
    const int player;
    QWidget* window;

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
