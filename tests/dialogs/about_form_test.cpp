#include "dialogs/about_form.h"
#include "tests/window_test.h"

#include <QClipboard>
#include <QGuiApplication>

namespace ksm {
namespace {

TEST(AboutForm, StandsInTheMiddleOfItsOwnerWithAddressesToCopyUntilOk) {
    QWidget owner;
    owner.setGeometry(100, 80, 640, 466);
    owner.show();
    const QPointer form(new AboutForm(&owner));
    form->show();
    EXPECT_EQ(form->frameGeometry().center(), owner.frameGeometry().center());
    for (const CaptionLabel* label : form->findChildren<CaptionLabel*>()) {
        EXPECT_EQ(label->ShownText(), label->Caption());
    }
    for (const char* name : {"Text1", "Text2", "Text3"}) {
        auto& box = *form->findChild<QLineEdit*>(name);
        const QString address = box.text();
        EXPECT_TRUE(address.startsWith("https://") && address.endsWith(".example/")) << name;
        QGuiApplication::clipboard()->setText("elsewhere");
        QTest::keyClicks(&box, "x");
        for (const auto key : {Qt::Key_V, Qt::Key_A, Qt::Key_X, Qt::Key_C}) {
            QTest::keyClick(&box, key, Qt::ControlModifier);
        }
        EXPECT_EQ(box.text(), address) << "can be copied, not changed";
        EXPECT_EQ(QGuiApplication::clipboard()->text(), address);
    }
    QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    EXPECT_TRUE(IsUnloaded(form));
}

} // namespace
} // namespace ksm
