#include "controls/qt_values.h"
#include "dialogs/tech_form.h"
#include "tests/window_test.h"

#include <QLabel>

namespace ksm {
namespace {

class TechFormTest : public testing::Test {
protected:
    void SetUp() override {
        owner.setGeometry(70, 50, 640, 446);
        owner.show();
    }

    template<typename Form>
    QPointer<TechForm> Open() {
        auto* form = new Form(&owner);
        form->open();
        return form;
    }

    QWidget owner;
};

TEST_F(TechFormTest, StandsOverTheOwnersCornerAndItsTextsFit) {
    const auto standard = Open<TechForm>();
    const auto expansion = Open<TechForm2>();
    EXPECT_EQ(standard->windowTitle(), "Korvane Astrell Technology Flowchart (Standard)");
    EXPECT_EQ(expansion->windowTitle(), "Korvane Astrell Technology Flowchart (Corrin's End)");
    for (const auto& form : {standard, expansion}) {
        EXPECT_EQ(form->pos(), owner.pos());
        const auto labels = form->findChildren<QLabel*>();
        EXPECT_EQ(labels.size(), form == standard ? 21 : 25) << "with the legend";
        for (const QLabel* label : labels) {
            const QSize needed = label->sizeHint();
            EXPECT_TRUE(needed.width() <= label->width() && needed.height() <= label->height())
                << label->text().toStdString();
        }
    }
}

TEST_F(TechFormTest, UnloadsByAClickAnywhereButOnTheLegend) {
    for (const char* name : {"Label1(0)", "Label1(23)", "Label2", "TechForm2"}) {
        const auto form = Open<TechForm2>();
        auto* label = form->findChild<QLabel*>(name);
        QWidget& place = label ? static_cast<QWidget&>(*label) : *form;
        QTest::mouseClick(&place, Qt::RightButton, {}, QPoint(12, 12));
        EXPECT_FALSE(IsUnloaded(form)) << name;
        QTest::mouseClick(&place, Qt::LeftButton, {}, QPoint(12, 12));
        EXPECT_EQ(IsUnloaded(form), std::string_view(name) != "Label2") << name;
    }
    const auto form = Open<TechForm>();
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(TechFormTest, PaintsEveryConnectorThreePixelsWideInItsColour) {
    const auto form = Open<TechForm2>();
    const QImage picture = form->grab().toImage();
    const TechChart& chart = ExpansionChart();
    for (const auto* lines : {&chart.Line1, &chart.Line4, &chart.Line5, &chart.Line6}) {
        for (const auto& [ink, from, to] : *lines) {
            const QPoint sample((2 * from.X + to.X) / 3, (2 * from.Y + to.Y) / 3);
            const QPoint across = from.X == to.X ? QPoint(1, 0) : QPoint(0, 1);
            EXPECT_EQ(picture.pixelColor(sample + across), ToQColor(ink)) << sample.x();
            EXPECT_EQ(picture.pixelColor(sample - across), ToQColor(ink)) << sample.x();
            EXPECT_NE(picture.pixelColor(sample + 2 * across), ToQColor(ink)) << sample.x();
        }
    }
}

} // namespace
} // namespace ksm
