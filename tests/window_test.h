// What every test of a window needs.
#pragma once

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace ksm {

/// Deletes the windows that were closed, as the event loop would.
inline void DeleteClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

/// In the pixels of the window that the platform knows.
inline QPoint PlaceIn(const QWidget* control, QPoint place) {
    return control->mapTo(control->window(), place);
}
inline QPoint Centre(const QWidget* control) { return PlaceIn(control, control->rect().center()); }
inline QWindow* PlatformWindow(const QWidget* control) { return control->window()->windowHandle(); }

/// A notch of the wheel over the control; up is positive.
inline void Turn(const QWidget* control, int notches) {
    QWheelEvent notch(Centre(control), control->mapToGlobal(control->rect().center()), {},
                      QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&notch);
    qApp->notify(PlatformWindow(control), &notch);
}

/// The window as it should be painted now.
inline QImage Picture(QWidget& window) {
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// What stands on the screen: something that was not painted anew is still seen as it was.
inline QImage OnScreen(const QWidget& window) {
    QCoreApplication::processEvents();
    const QPixmap seen = window.screen()->grabWindow(window.winId());
    return seen.toImage().convertToFormat(QImage::Format_RGB32);
}

/// What is read where the text, marked up or not, is shown.
inline QString AsRead(const QString& text) {
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// Closes the message boxes that open while it lives. Without it a box fails the test.
class MessageBoxes : public QObject {
public:
    explicit MessageBoxes(bool areExpected = true) : expected(areExpected) {
        qApp->installEventFilter(this);
    }

    QStringList Said; ///< title, text and reason of each, as they are read
    QImage Seen;      ///< the last one

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box && event->type() == QEvent::Show && !box->property("Read").toBool()) {
            box->setProperty("Read", true);
            Said << box->windowTitle() << Read(*box, "qt_msgbox_label")
                 << Read(*box, "qt_msgbox_informativelabel");
            EXPECT_TRUE(expected) << "an unexpected message box: " << Said.join('|').toStdString();
            const auto close = [this, box] {
                Seen = Picture(*box);
                box->accept();
            };
            QMetaObject::invokeMethod(box, close, Qt::QueuedConnection);
        }
        return false;
    }

private:
    /// What a label of the box shows.
    static QString Read(const QMessageBox& box, const char* name) {
        const auto* label = box.findChild<QLabel*>(QLatin1StringView(name));
        return label && label->textFormat() == Qt::PlainText ? label->text() : QString();
    }

    bool expected;
};

} // namespace ksm
