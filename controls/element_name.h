// Object names of controls that stand in an array.
#pragma once

#include <QString>

namespace ksm {

/// "PlayerName(3)".
inline QString ElementName(const char* array, int index) {
    return QString("%1(%2)").arg(QLatin1StringView(array)).arg(index);
}

} // namespace ksm
