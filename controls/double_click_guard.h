// Double clicks whose halves hit two different controls.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ksm {

/// A click can close a window or hide a panel; the second half of a double click then falls through
/// to whatever lies behind. It counts for nothing there. To be installed on the application.
class DoubleClickGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> pressed; ///< what got the first half
    quint64 pressTime = 0;     ///< when, to tell it from whom the press is passed on to
};

} // namespace ksm
