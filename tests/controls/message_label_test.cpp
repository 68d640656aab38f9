#include "controls/message_label.h"
#include "tests/window_test.h"

namespace ksm {
namespace {

TEST(MessageLabel, CutsLongNamesRatherThanToShrinkBeyondReading) {
    const QString first = "Alexandra-Maximiliana of Arden"; // thirty letters
    const QString second = "Wilhelmina Winifred Wentworths";
    const std::tuple<QString, QString, int> rows[]{
        {"Ada makes Trade Agreement with...", "Ada makes Trade Agreement with...", 11},
        {first + " and " + second + " make a TA", first + " and " + second + " make a TA", 9},
        {first + " and " + second + " are not allowed to trade with eachother",
         QString("Alexandra-Maximilia\u2026 and Wilhelmina Winifred\u2026 are not allowed to trade "
                 "with eachother"),
         9},
        {QString(300, 'w') + " makes Trade Agreement with...", "", 7},
        {QString("\r\n\r\nTRADE STOP!"), "\n\nTRADE STOP!", 11},
    };
    QWidget panel;
    for (const auto& [message, shown, smallest] : rows) {
        MessageLabel label("TInfo", QRect(0, 0, 73, 57), &panel);
        label.SetCaption(message, {first, second, "Ada"});
        EXPECT_TRUE(label.ShownText() == shown || shown.isEmpty())
            << label.ShownText().toStdString();
        EXPECT_GE(label.ShownFont().pixelSize(), smallest) << message.toStdString();
        EXPECT_EQ(label.Caption(), message);
    }
}

} // namespace
} // namespace ksm
