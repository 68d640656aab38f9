// The setup panel: number of players, game type and the start of play.
#pragma once

#include "model/game_state.h"

#include <QWidget>

class QPushButton;
class QRadioButton;

namespace ksm {

class SpinBar;

/// Picture box `GameSetupPic`. It lies over the summary table and the planet board until "START".
class SetupPanel : public QWidget {
    Q_OBJECT

public:
    SetupPanel(GameState& state, QWidget* parent);

    /// Writes the number of players at start as the user's hand would.
    void Form_Load();
    /// Shows the number of players of the game state.
    void ShowGame();

signals:
    void PlayerCountChanged();
    void StartClicked();

private:
    void MakeLabels();
    void MakeControls();
    QRadioButton* MakeOption(const char* name, const char* caption, int top);
    void PlayNumScroll_Change(int value);

    GameState& state;
    SpinBar* PlayNumScroll = nullptr;
    QRadioButton* OptionNormal = nullptr;
};

} // namespace ksm
