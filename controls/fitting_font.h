// A font in which a text fits its place.
#pragma once

#include <QFont>

#include <functional>

namespace ksm {

/// `font` where that fits; else the condensed face, as bold and slanted, in the largest size that
/// fits, from the font's own down to `smallest` pixels. The smallest where none fits. What it
/// returns is what it tried last.
QFont FittingFont(const QFont& font, int smallest, const std::function<bool(const QFont&)>& fits);

/// Finds the font for a text in one line, `room` pixels wide.
QFont FittingFont(const QFont& font, int smallest, const QString& text, double room);

} // namespace ksm
