// The small borderless window in which a player gets a name and a colour.
#pragma once

#include "model/game_state.h"

#include <QWidget>

class QLineEdit;

namespace ksm {

/// Names the player of its opening, `EditedPlayer`. Every change takes effect at once; there is no
/// cancel. Closing it in any way unloads it.
class ColorSelectForm : public QWidget {
    Q_OBJECT

public:
    ColorSelectForm(GameState& game, QWidget* owner);

    /// Fills the name box, which empties the labels of a player who has no name yet.
    void Form_Load();

signals:
    /// Name, short name or colours of the player changed: once for each thing that the user did.
    void Changed();
    /// "OK" or Enter.
    void Confirmed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void MakeEntries();
    void MakeSwatches();
    void NameEntry_Change(const QString& text);
    void ShortNameEntry_Change(const QString& text);
    void NameColor_Click(int swatch);
    void ColorOK_Click();

    GameState& state;
    const int player;
    QLineEdit* NameEntry = nullptr;
    QLineEdit* ShortNameEntry = nullptr;
};

} // namespace ksm
