// Windows of fixed size on desktops that maximise them.
#pragma once

#include <QObject>

class QWindow;

namespace ksm {

/// Under Wayland every title bar has a button that maximises, and a desktop may end a program whose
/// window does not fill the size that it is then given. With this a window fills it, and returns to
/// its own size at once, as it does from a full screen. To be installed on the application.
class FixedSizeGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Watch(QWindow* window);
};

} // namespace ksm
