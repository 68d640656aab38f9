#include "tests/window_test.h"

namespace ksm {
namespace {

TEST(CaptionLabel, ShowsMarkupAsTypedAndWhatIsTooWideBehindAnEllipsis) {
    QWidget window;
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    for (const QString caption : {"<b>", "A & B", "&File"}) {
        label.SetCaption(caption);
        EXPECT_EQ(label.ShownText(), caption);
    }
    label.SetCaption("Anna-Maximiliana the Second");
    EXPECT_TRUE(label.ShownText().endsWith(QChar(0x2026)));
    EXPECT_EQ(label.Caption(), "Anna-Maximiliana the Second");
    label.resize(300, 17);
    EXPECT_EQ(label.ShownText(), label.Caption());
}

TEST(CaptionLabel, ClicksOnceByMouseAndByKey) {
    QWidget window;
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    window.show();
    QSignalSpy clicks(&label, &CaptionLabel::Clicked);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 0) << "only a clickable label clicks";

    label.MakeClickable();
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(100, 100));
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 0) << "a button released elsewhere and the other button do not";
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 3);
}

} // namespace
} // namespace ksm
