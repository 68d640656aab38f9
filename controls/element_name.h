// How controls get their names and places.
#pragma once

#include <QWidget>

namespace ksm {

/// "PlayerName(3)".
inline QString ElementName(const char* array, int index) {
    return QString("%1(%2)").arg(QLatin1StringView(array)).arg(index);
}

/// Where a control stands, and what assistive technology calls one without a text of its own.
inline void NameAndPlace(QWidget& control, const QString& objectName, const QRect& place,
                         const QString& meaning = {}) {
    control.setObjectName(objectName);
    control.setGeometry(place);
    control.setAccessibleName(meaning);
}

} // namespace ksm
