// The one look of every window: style, palette and fonts.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace ksm {

/// Gives the application its light Fusion look, whatever theme the desktop has.
void ApplyLook();

/// Gives what plays the role in the control this colour.
void SetColour(QWidget& control, QPalette::ColorRole role, const QColor& colour);

/// The background of windows, and of labels that have no colour of their own.
QColor ButtonFace();

// 8.25, 12 and 15.75 points at 96 dots an inch.
inline constexpr int SmallText = 11;
/// Figures that are read from across the table.
inline constexpr int FigureText = 14;
inline constexpr int MediumText = 16;
inline constexpr int LargeText = 21;

/// The face of most captions and figures.
QFont PlainFont(int pixels = SmallText);
QFont BoldFont(int pixels = SmallText);
/// The face of the planets.
QFont ArialFont(QFont::Weight weight = QFont::Normal);
/// The same face condensed, for texts that are wider than their place.
QFont NarrowFont(int pixels = SmallText);
/// The handwritten face of the dice roller.
QFont ComicFont(int pixels);

} // namespace ksm
