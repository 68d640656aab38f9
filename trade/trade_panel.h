// The trade panel: the players' labels in a ring, the lines between them, buttons and messages.
#pragma once

#include "trade/trade_agreements.h"
#include "trade/trade_diagram.h"

#include <QWidget>

class QPushButton;

namespace ksm {

class CaptionLabel;
class MessageLabel;

/// Picture box `TradePic`.
class TradePanel : public QWidget {
    Q_OBJECT

public:
    TradePanel(GameState& state, QWidget* parent);

    /// Does what a click here or a trade law asks for: message, values, diagram.
    void Apply(const TradeOutcome& outcome);
    /// Shows prompt and diagram of the game state, after a game was loaded.
    void ShowGame();

    /// Places each player's label in the ring of its `TradeRing`.
    void PlaceLabels();
    void ShowLabel(int player, bool visible);

    /// Shows the player's short name and colours; lines already drawn keep theirs.
    void ShowPlayer(int player);
    /// Shows the count of agreements.
    void ShowValues();

signals:
    /// An input of the rules changed.
    void InputChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void MakeLabels();
    void MakeButtons();
    void ShowInfo();
    void RedrawTradeDiagram();
    /// Tells assistive technology what the lines tell the eye.
    void NameLabels();
    TradeAnchors Anchors() const;

    GameState& state;
    TradeDiagram diagram;
    PerPlayer<CaptionLabel*> TradePlayer;
    QPushButton* AddTAbutton = nullptr;
    QPushButton* RemoveTAButton = nullptr;
    MessageLabel* TInfo = nullptr;
    CaptionLabel* TradeNumber = nullptr;
};

} // namespace ksm
