// Drops clicks and keys that began in another window or control.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;

namespace ksm {

/// A click or a key can close a window, open one or hide a panel. The second click of a double
/// click then falls on what lies behind, and a held key repeats in another window: both are
/// dropped. To be installed on the application.
class InputGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NotePress(QWidget& control, const QMouseEvent& event);
    /// Whether the first click of a double click fell on another control.
    bool IsStrayDoubleClick(const QWidget& control) const;
    /// Whether a held key repeats in a window in which it was not pressed.
    bool IsStrayRepeat(QWidget& control, const QKeyEvent& event);

    QPointer<QWidget> pressed; ///< the control that got the last press
    quint64 pressTime = 0;
    int heldKey = 0;
    QPointer<QWidget> heldIn; ///< the window in which the key was pressed
    quint64 releaseTime = 0;
};

} // namespace ksm
