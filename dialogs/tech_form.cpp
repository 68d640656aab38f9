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

struct FieldLook {
    const char* Name = "";
    Colour Back;
};

const FieldLook& LookOf(TechField field) {
    // In the order of the enumeration.
    static constexpr std::array<FieldLook, 4> looks{{{"green", colour::DarkGreen},
                                                     {"yellow", colour::DarkYellow},
                                                     {"blue", colour::Navy},
                                                     {"red", colour::DarkRed}}};
    return looks.at(static_cast<std::size_t>(field));
}

QFont BoxFont() {
    QFont font = NarrowFont();
    font.setBold(true);
    return font;
}

QString ToQString(std::string_view name) { return QLatin1StringView(name); }

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
    return QString("%1, %2, %3")
        .arg(ToQString(technology.Name), LookOf(technology.Field).Name,
             Requirement(technology, chart));
}

void MakeBox(const TechChart& chart, int index, QWidget* parent) {
    const TechBox& technology = chart.Label1.at(static_cast<std::size_t>(index));
    auto* box = new QLabel(parent);
    NameAndPlace(*box, ElementName("Label1", index),
                 {ToQPoint(technology.Place), QSize(technology.Width, TechBoxHeight)},
                 AccessibleName(technology, chart));
    box->setFont(BoxFont());
    box->setText(ToQString(technology.Name).replace(' ', '\n')); // one word a line
    box->setAlignment(Qt::AlignCenter);
    SetColour(*box, QPalette::Window, ToQColor(LookOf(technology.Field).Back));
    SetColour(*box, QPalette::WindowText, Qt::white);
    box->setAutoFillBackground(true);
}

void MakeLegend(QWidget* parent) {
    auto* legend = new QLabel("= AND", parent);
    NameAndPlace(*legend, "Label2", {LegendSample.X + 13, LegendSample.Y - 8, 40, 17},
                 "A diamond means AND");
    legend->setFont(BoxFont());
    legend->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // A click on it does nothing.
    legend->setAttribute(Qt::WA_NoMousePropagation);
}

void DrawConnectors(QPainter& painter, const std::vector<Connector>& connectors) {
    for (const Connector& connector : connectors) {
        DrawEvenLine(painter, ToQPoint(connector.From), ToQPoint(connector.To), ConnectorWidth,
                     ToQColor(connector.Ink));
    }
}

// Two strokes that meet at the tip: an arrowhead, or half of a diamond.
void DrawStrokes(QPainter& painter, QPointF tip, QPointF from, QPointF to) {
    const QPointF even = OnDevicePixel(painter, tip) - tip + QPointF(0.5, 0.5);
    const std::array points{from + even, tip + even, to + even};
    painter.drawPolyline(points.data(), points.size());
}

void DrawMark(QPainter& painter, const ChartMark& mark) {
    painter.setPen(
        QPen(ToQColor(mark.Ink), StrokeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const QPoint at = ToQPoint(mark.At);
    const QPoint across(StrokeSize, 0);
    const QPoint down(0, StrokeSize);
    switch (mark.Shape) {
    case MarkShape::ArrowDown:
        DrawStrokes(painter, at, at - down - across, at - down + across);
        break;
    case MarkShape::ArrowRight:
        DrawStrokes(painter, at, at - across - down, at - across + down);
        break;
    case MarkShape::Diamond:
        DrawStrokes(painter, at + down, at - across, at + across);
        DrawStrokes(painter, at - down, at - across, at + across);
        break;
    }
}

} // namespace

TechForm::TechForm(const char* objectName, const TechChart& shown, QWidget* owner)
    : FixedDialog(objectName, shown.Title, QSize(ChartWidth, ChartHeight), owner), chart(shown) {
    for (int index = 0; index < static_cast<int>(chart.Label1.size()); ++index) {
        MakeBox(chart, index, this);
    }
    MakeLegend(this);
    PlaceFromOwner({0, 0});
}

void TechForm::Form_Click() { close(); }

// The boxes hand their clicks on to the window.
void TechForm::mousePressEvent(QMouseEvent* event) { pressed = event->button() == Qt::LeftButton; }

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
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ChartMark& mark : chart.Marks) {
        DrawMark(painter, mark);
    }
}

} // namespace ksm
