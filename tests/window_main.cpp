// Runs the window tests on a platform without a screen, where nothing waits for anybody.

#include "tests/window_test.h"

#include <QTimer>

namespace {

/// Closes every message box, and fails the test that does not expect it.
class BoxCloser : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box && event->type() == QEvent::Show) {
            EXPECT_TRUE(box->property("Expected").toBool())
                << "an unexpected message box: " << box->text().toStdString();
            QTimer::singleShot(0, box, &QMessageBox::accept);
        }
        return false;
    }
};

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    QGuiApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    ksm::ApplyLook();
    QApplication::setCursorFlashTime(0); // a caret looks the same at any moment
    BoxCloser closer;
    application.installEventFilter(&closer);
    return RUN_ALL_TESTS();
}
