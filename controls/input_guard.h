// Clicks and keys that go on elsewhere than they began.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;

namespace ksm {

/// A click or a key can close a window, open one or hide a panel. What follows of it then reaches
/// something else: the second half of a double click what lies behind, the repetitions of a held
/// key another window. It counts for nothing there. To be installed on the application.
class InputGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NotePress(QWidget& control, const QMouseEvent& event);
    bool FellThrough(const QWidget& control) const;
    bool RunsOn(QWidget& control, const QKeyEvent& event);

    QPointer<QWidget> pressed; ///< what got the first half of a double click
    quint64 pressTime = 0;
    int heldKey = 0;
    QPointer<QWidget> heldIn; ///< the window in which the key was pressed
    quint64 releaseTime = 0;
};

} // namespace ksm
