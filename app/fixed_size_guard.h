// Windows of fixed size on desktops that size windows as they like.
#pragma once

#include <QObject>

namespace ksm {

/// Under Wayland every title bar has a button that maximises, edges can be dragged, and a desktop
/// may end a program whose window does not fill the size that maximising gives it. With this a
/// window fills that size, and returns to its own at once, as it does from a full screen; dragging
/// its edges changes nothing. To be installed on the application.
class FixedSizeGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ksm
