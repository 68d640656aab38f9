#include "dialogs/tech_form.h"

#include "controls/element_name.h"
#include "controls/even_drawing.h"
#include "controls/look.h"
#include "controls/qt_values.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace ksm {

namespace {

constexpr int ConnectorWidth = 3;
constexpr int StrokeWidth = 2;

QFont BoxFont() {
    QFont font = NarrowFont();
    font.setBold(true);
    return font;
}

QString ToQString(std::string_view name) {
    return QLatin1StringView(name);
}

/// What the lines that enter a box tell the eye.
QString Requirement(const TechBox& technology, const TechChart& chart) {
    QStringList sources;
    for (const int source : technology.Sources) {
        sources << ToQString(chart.Label1.at(static_cast<std::size_t>(source)).Name);
    }
    if (sources.isEmpty()) {
        return "free from the start";
    }
    return "needs " + sources.join(technology.Rule == TechRule::AllOf ? " and " : " or ");
}

QString AccessibleName(const TechBox& technology, const TechChart& chart) {
    constexpr std::array fields{"green", "yellow", "blue", "red"};
    return QString("%1, %2, %3")
        .arg(ToQString(technology.Name),
             QLatin1StringView(fields.at(static_cast<std::size_t>(technology.Field))),
             Requirement(technology, chart));
}

void MakeBox(const TechChart& chart, int index, QWidget* parent) {
    const TechBox& technology = chart.Label1.at(static_cast<std::size_t>(index));
    auto* box = new QLabel(parent);
    box->setObjectName(ElementName("Label1", index));
    box->setGeometry({ToQPoint(technology.Place), QSize(technology.Width, TechBoxHeight)});
    box->setFont(BoxFont());
    box->setText(ToQString(technology.Name).replace(' ', '\n')); // one word a line
    box->setAccessibleName(AccessibleName(technology, chart));
    box->setAlignment(Qt::AlignCenter);
    QPalette colours = box->palette();
    colours.setColor(QPalette::Window, ToQColor(BoxColour(technology.Field)));
    colours.setColor(QPalette::WindowText, Qt::white);
    box->setPalette(colours);
    box->setAutoFillBackground(true);
}

void MakeLegend(QWidget* parent) {
    auto* legend = new QLabel("= AND", parent);
    legend->setObjectName("Label2");
    legend->setAccessibleName("A diamond means AND");
    legend->setFont(BoxFont());
    legend->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    legend->setGeometry(LegendSample.X + 13, LegendSample.Y - 8, 40, 17);
    // A click on it does nothing.
    legend->setAttribute(Qt::WA_NoMousePropagation);
}

void DrawConnectors(QPainter& painter, const std::vector<Connector>& connectors) {
    for (const Connector& connector : connectors) {
        DrawEvenLine(painter, ToQPoint(connector.From), ToQPoint(connector.To), ConnectorWidth,
                     ToQColor(connector.Ink));
    }
}

void DrawStrokes(QPainter& painter, const std::vector<StrokePair>& pairs) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const StrokePair& pair : pairs) {
        painter.setPen(
            QPen(ToQColor(pair.Ink), StrokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        const QPointF tip = ToQPoint(pair.Tip);
        const QPointF even = OnDevicePixel(painter, tip) - tip + QPointF(0.5, 0.5);
        // Both meet at the tip.
        const std::array points{ToQPoint(pair.Line2) + even, tip + even,
                                ToQPoint(pair.Line3) + even};
        painter.drawPolyline(points.data(), points.size());
    }
}

} // namespace

TechForm::TechForm(QWidget* owner)
    : TechForm("TechForm", "Korvane Astrell Technology Flowchart (Standard)", StandardChart(),
               owner) {}

TechForm2::TechForm2(QWidget* owner)
    : TechForm("TechForm2", "Korvane Astrell Technology Flowchart (Corrin's End)", ExpansionChart(),
               owner) {}

TechForm::TechForm(const char* objectName, const QString& title, const TechChart& shown,
                   QWidget* owner)
    : FixedDialog(objectName, title, QSize(ChartWidth, ChartHeight), owner), chart(shown) {
    for (int index = 0; index < static_cast<int>(chart.Label1.size()); ++index) {
        MakeBox(chart, index, this);
    }
    MakeLegend(this);
    Form_Load();
}

void TechForm::Form_Load() {
    PlaceFromOwner({0, 0});
}

void TechForm::Form_Click() {
    close();
}

// The boxes hand their clicks on to the window.
void TechForm::mousePressEvent(QMouseEvent* event) {
    pressed = event->button() == Qt::LeftButton;
}

void TechForm::mouseReleaseEvent(QMouseEvent* event) {
    if (pressed && event->button() == Qt::LeftButton &&
        rect().contains(event->position().toPoint())) {
        Form_Click();
    }
}

void TechForm::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const auto* connectors : {&chart.Line6, &chart.Line5, &chart.Line4, &chart.Line1}) {
        DrawConnectors(painter, *connectors);
    }
    DrawStrokes(painter, StrokePairs(chart));
}

} // namespace ksm
