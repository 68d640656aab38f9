// The trade panel: the players' labels in a ring, the lines between them, buttons and messages.
#pragma once

#include "model/game_state.h"
#include "model/per_player.h"

#include <QWidget>

class QPushButton;

namespace ksm {

class CaptionLabel;
class MessageLabel;

/// Picture box `TradePic`.
class TradePanel : public QWidget {
    Q_OBJECT

public:
    TradePanel(Game& shown, QWidget* parent);

    /// Shows labels, lines, messages and the count of agreements.
    void ShowGame();
    /// What is seen while the player is in the game.
    QWidgetList PlayerControls(int player) const;

signals:
    /// What the user did is done.
    void Changed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void MakeLabels();
    void MakeButtons();
    QPushButton* MakeButton(const char* name, const char* caption, int top);
    void AddTAbutton_Click();
    void RemoveTAButton_Click();
    void TradePlayer_Click(int player);
    void ShowPlayer(int player);
    void ShowDiagram();
    void PaintAnew(std::span<const Stroke> strokes);

    Game& game;
    PerPlayer<CaptionLabel*> TradePlayer;
    QPushButton* AddTAbutton = nullptr;
    QPushButton* RemoveTAButton = nullptr;
    MessageLabel* TInfo = nullptr;
    CaptionLabel* TradeNumber = nullptr;
    Strokes shownStrokes;
};

} // namespace ksm
