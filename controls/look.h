// The one look of every window: style, palette, fonts and units.
#pragma once

#include "model/colour.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <string>

class QApplication;

namespace ksm {

/// Gives the program its light Fusion look, whatever theme the desktop has.
void ApplyLook(QApplication& application);

// 8.25, 12 and 15.75 points at 96 dots an inch.
inline constexpr int SmallText = 11;
/// Figures that are read from across the table.
inline constexpr int FigureText = 14;
inline constexpr int MediumText = 16;
inline constexpr int LargeText = 21;

/// The face of captions and figures.
QFont PlainFont(int pixels = SmallText);
QFont BoldFont(int pixels = SmallText);
/// A condensed face, for texts that are wider than their place.
QFont NarrowFont(int pixels = SmallText);
/// The handwritten face of the dice roller.
QFont ComicFont(int pixels);

/// Pixels for a measure in twips (15 to the pixel), rounded to the nearest.
constexpr int FromTwips(int twips) {
    return twips >= 0 ? (twips + 7) / 15 : -((-twips + 7) / 15);
}

inline QColor ToQColor(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}
inline QString ToQString(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Object name of one element of a control array: "PlayerName(3)".
QString ElementName(const char* array, int index);

} // namespace ksm
