// The setup panel: number of players, game type and the start of play.
#pragma once

#include "model/game_state.h"

#include <QWidget>

namespace ksm {

class SpinBar;

/// Picture box `GameSetupPic`. It lies over the summary table and the planet board until "START".
class SetupPanel : public QWidget {
    Q_OBJECT

public:
    SetupPanel(Game& shown, QWidget* parent);

    /// Shows the number of players, until the game starts.
    void ShowGame();

signals:
    /// What the user did is done.
    void Changed();
    void StartClicked();

private:
    void MakeLabels();
    void MakeControls();
    void MakeOptions();
    void PlayNumScroll_Change(int value);

    Game& game;
    SpinBar* PlayNumScroll = nullptr;
};

} // namespace ksm
