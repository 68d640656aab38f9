#include "planets/board_row.h"

#include "controls/element_name.h"
#include "controls/fitting_font.h"
#include "controls/look.h"
#include "controls/qt_values.h"
#include "planets/planet_text.h"

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
        return ToQColor(colour::BluePlanet);
    case Specialty::Green:
        return ToQColor(colour::GreenPlanet);
    case Specialty::Red:
        return ToQColor(colour::RedPlanet);
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

BoardRow::BoardRow(int row, const Game& shown, QWidget* board) : game(shown), number(row + 1) {
    const int top = RowTop + RowPitch * row;
    InvasionPlanet = new PlanetLabel(ElementName("InvasionPlanet", row), {NameLeft, top}, board);
    InvasionResInf = new CaptionLabel(ElementName("InvasionResInf", row),
                                      {FigureLeft, top, FigureRight - FigureLeft, RowPitch}, board);
    InvasionResInf->SetAlignment(Qt::AlignCenter);
    for (CaptionLabel* label : {static_cast<CaptionLabel*>(InvasionPlanet), InvasionResInf}) {
        label->setFont(ArialFont());
    }
    InvasionPlanet->SetExplanation([this] { return OwnerText(game, tag); });
    InvasionResInf->SetHeading(QString("Resources and influence, row %1").arg(number));
    InvasionResInf->SetExplanation([this] { return PlanetFiguresText(game, tag); });
    SetNote({});
}

void BoardRow::Show(int slot) {
    tag = slot;
    InvasionPlanet->setProperty("Tag", QString::number(slot));
    QString name;
    if (slot == NoPlanet) {
        ShowFigures({}, Specialty::None);
    } else {
        const PlanetRecord& planet = game.Planet(slot);
        name = QString::fromStdString(planet.Name);
        ShowFigures(QString("%1 %2").arg(planet.Resources).arg(planet.Influence), planet.Specialty);
    }
    InvasionPlanet->SetPlanet(name, InvasionResInf->x() - NameLeft);
}

bool BoardRow::Holds(const QWidget* control) const {
    return control == InvasionPlanet || control == InvasionResInf;
}

void BoardRow::ShowFigures(const QString& figures, Specialty specialty) {
    if (figures != InvasionResInf->Caption()) {
        InvasionResInf->SetCaption(figures);
        FitFigures();
    }
    InvasionResInf->SetColours(SpecialtyColour(specialty), TextColour(specialty));
}

void BoardRow::FitFigures() {
    constexpr int Room = FigureRight - FigureLeft;
    // Figures are never cut: those of many digits take their room from a long name.
    const QString figures = InvasionResInf->Caption();
    const QFont fitting = FittingFont(InvasionResInf->font(), SmallText - 2, figures, Room);
    const int place = std::max(Room, qCeil(QFontMetricsF(fitting).horizontalAdvance(figures)));
    InvasionResInf->setGeometry(FigureRight - place, InvasionResInf->y(), place, RowPitch);
}

void BoardRow::SetNote(const QString& note) {
    InvasionPlanet->SetHeading(QString("Planet, row %1").arg(number) + note);
}

} // namespace ksm
