// What every test of a window needs.
#pragma once

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace ksm {

/// Deletes the windows that were closed, as the event loop would.
inline void DeleteClosed() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template<typename Window>
bool IsUnloaded(const QPointer<Window>& window) {
    DeleteClosed();
    return window.isNull();
}

} // namespace ksm
