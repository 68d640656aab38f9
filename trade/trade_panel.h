// The trade panel: the players' labels in a ring, the lines between them, buttons and messages.
#pragma once

#include "model/per_player.h"
#include "trade/trade_agreements.h"

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

    /// Does what a click here or a trade law asks for: message, values, diagram.
    void Apply(const TradeOutcome& outcome);

    /// Places the player's label in the ring where the player last had a place.
    void PlaceLabel(int player);
    void SetLabelVisible(int player, bool visible);

    /// Shows the lines as they were drawn.
    void ShowDiagram();
    /// Shows the prompt or the result of a selection.
    void ShowInfo();
    /// Shows the player's short name and colours; lines already drawn keep theirs.
    void ShowPlayer(int player);
    /// Shows the count of agreements.
    void ShowValues();

signals:
    /// An input of the figures changed: they are recomputed and shown before this returns.
    void InputChanged();
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
    void ShowStrokes(std::span<const Stroke> strokes);

    Game& game;
    PerPlayer<CaptionLabel*> TradePlayer;
    QPushButton* AddTAbutton = nullptr;
    QPushButton* RemoveTAButton = nullptr;
    MessageLabel* TInfo = nullptr;
    CaptionLabel* TradeNumber = nullptr;
};

} // namespace ksm
