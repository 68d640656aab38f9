#include "planets/board_row.h"

#include "controls/look.h"

#include <QtMath>

namespace ksm {

namespace {

constexpr int RowTop = 5;
constexpr int RowPitch = 14;
constexpr int NameLeft = 75;
constexpr int FigureLeft = 139;
constexpr int FigureRight = 158;

QColor SpecialtyColour(Specialty specialty) {
    switch (specialty) {
    case Specialty::Blue:
        return {0x40, 0x40, 0xFF};
    case Specialty::Green:
        return {0x00, 0xA0, 0x00};
    case Specialty::Red:
        return {0xFF, 0x60, 0x00};
    case Specialty::None:
        break;
    }
    return ButtonFace();
}

// Black is hard to read on the blue.
QColor TextColour(Specialty specialty) {
    return specialty == Specialty::Blue ? Qt::white : Qt::black;
}

} // namespace

QColor ButtonFace() {
    return QPalette().color(QPalette::Button);
}

BoardRow::BoardRow(int row, QWidget* board) : number(row + 1) {
    const int top = RowTop + RowPitch * row;
    InvasionPlanet = new PlanetLabel(ElementName("InvasionPlanet", row), {NameLeft, top},
                                     FigureLeft - NameLeft, board);
    InvasionResInf = new CaptionLabel(ElementName("InvasionResInf", row),
                                      {FigureLeft, top, FigureRight - FigureLeft, RowPitch}, board);
    InvasionResInf->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    SetNote({});
}

void BoardRow::Show(int tag, const PlanetRecord& planet) {
    InvasionPlanet->setProperty("Tag", QString::number(tag));
    InvasionPlanet->SetPlanet(ToQString(planet.Name));
    ShowFigures(QString("%1 %2").arg(planet.Resources).arg(planet.Influence), planet.Specialty);
}

void BoardRow::ShowEmpty() {
    InvasionPlanet->setProperty("Tag", QString::number(NoPlanet));
    InvasionPlanet->SetPlanet({});
    ShowFigures({}, Specialty::None);
}

void BoardRow::ShowFigures(const QString& figures, Specialty specialty) {
    if (figures != InvasionResInf->text()) {
        InvasionResInf->SetCaption(figures);
        FitFigures();
    }
    InvasionResInf->SetColours(SpecialtyColour(specialty), TextColour(specialty));
    // Only the colour tells the specialty.
    constexpr std::array notes{"", ", blue specialty", ", green specialty", ", red specialty"};
    InvasionResInf->SetHeading(QString("Resources and influence, row %1").arg(number) +
                               QLatin1StringView(notes.at(static_cast<std::size_t>(specialty))));
}

void BoardRow::FitFigures() {
    constexpr int Room = FigureRight - FigureLeft;
    const QString figures = InvasionResInf->text();
    double width = QFontMetricsF(InvasionResInf->font()).horizontalAdvance(figures);
    if (width > Room) {
        // Figures are never cut: those of many digits reach over the end of a long name.
        constexpr int SmallestText = SmallText - 2;
        width = QFontMetricsF(NarrowFont(SmallestText)).horizontalAdvance(figures);
    }
    const int place = std::max(Room, qCeil(width));
    InvasionResInf->setGeometry(FigureRight - place, InvasionResInf->y(), place, RowPitch);
}

void BoardRow::SetNote(const QString& note) {
    InvasionPlanet->SetHeading(QString("Planet, row %1").arg(number) + note);
}

} // namespace ksm
