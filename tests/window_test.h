// What every test of a window needs.
#pragma once

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace ksm {

/// The message box that the test brings about while this object lives. It is closed at once, as is
/// every other box, which fails the test.
class ExpectedBox : public QObject {
public:
    ExpectedBox() { qApp->installEventFilter(this); }
    ~ExpectedBox() override { EXPECT_EQ(Said.size(), 3) << "no message box was shown"; }
    Q_DISABLE_COPY_MOVE(ExpectedBox)

    QStringList Said; ///< its title, text and reason
    QImage Picture;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box && event->type() == QEvent::Show) {
            box->setProperty("Expected", true);
            Said = {box->windowTitle(), box->text(), box->informativeText()};
        } else if (box && event->type() == QEvent::Hide) {
            Picture = box->grab().toImage();
        }
        return false;
    }
};

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
