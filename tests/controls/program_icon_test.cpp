#include "controls/program_icon.h"
#include "tests/window_test.h"

#include <QImage>
#include <QPixmap>

namespace ksm {
namespace {

TEST(ProgramIcon, IsDrawnAtTheSizeAskedFor) {
    for (const int size : {16, 32, 48, 256}) {
        const QImage picture = ProgramIcon().pixmap(QSize(size, size), 1.0).toImage();
        ASSERT_EQ(picture.size(), QSize(size, size));
        EXPECT_GT(qAlpha(picture.pixel(size / 2, size / 2)), 250);
        EXPECT_LT(qAlpha(picture.pixel(0, 0)), 50) << "the corners are round";
    }
}

} // namespace
} // namespace ksm
