// One row of the planet board.
#pragma once

#include "model/game_state.h"
#include "planets/planet_label.h"

namespace ksm {

/// A planet's name, which can be dragged, and its figures on the colour of its specialty.
class BoardRow {
public:
    /// Row 0..11 of the board.
    BoardRow(int row, const Game& shown, QWidget* board);

    PlanetLabel& Name() { return *InvasionPlanet; }

    /// Shows the planet of this slot of the planet table, or nothing for `NoPlanet`.
    void Show(int slot);
    /// The slot of the planet shown, or `NoPlanet`.
    int Tag() const { return tag; }
    /// Whether the control is one of its two labels.
    bool Holds(const QWidget* control) const;

    /// What assistive technology calls the row's planet; `note` says what happens to it.
    void SetNote(const QString& note);

private:
    void ShowFigures(const QString& figures, Specialty specialty);
    void FitFigures();

    const Game& game;
    int number; ///< from 1
    int tag = NoPlanet;
    PlanetLabel* InvasionPlanet;
    CaptionLabel* InvasionResInf;
};

} // namespace ksm
