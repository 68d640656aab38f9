#include "controls/fitting_font.h"

#include "controls/look.h"

#include <QFontMetricsF>

namespace ksm {

QFont FittingFont(const QFont& font, int smallest, const std::function<bool(const QFont&)>& fits) {
    if (fits(font)) {
        return font;
    }
    QFont narrow = NarrowFont(font.pixelSize());
    narrow.setBold(font.bold());
    narrow.setItalic(font.italic());
    while (!fits(narrow) && narrow.pixelSize() > smallest) {
        narrow.setPixelSize(narrow.pixelSize() - 1);
    }
    return narrow;
}

QFont FittingFont(const QFont& font, int smallest, const QString& text, double room) {
    return FittingFont(font, smallest, [&](const QFont& tried) {
        return QFontMetricsF(tried).horizontalAdvance(text) <= room;
    });
}

} // namespace ksm
