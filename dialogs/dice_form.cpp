#include "dialogs/dice_form.h"

#include "controls/accessible_names.h"
#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "controls/qt_values.h"
#include "controls/shape_frame.h"
#include "controls/spin_bar.h"
#include "controls/twips.h"

#include <QPushButton>
#include <QTime>

#include <cstdint>
#include <limits>
#include <random>

namespace ksm {

namespace {

constexpr int PlaceSize = 25;

// One place in the middle and six around it.
constexpr std::array<QPoint, MaxDice> PlaceCorners{
    {{48, 47}, {89, 63}, {8, 23}, {48, 7}, {88, 24}, {48, 83}, {8, 63}}};

// The spinner counts down: its last usable position means one die.
constexpr int OneDie = MaxDice - 1;

CaptionLabel* MakeFigure(const QString& name, QPoint corner, int pixels, QWidget* parent) {
    auto* label = new CaptionLabel(name, QRect(corner, QSize(PlaceSize, PlaceSize)), parent);
    label->setFont(ComicFont(pixels));
    label->SetAlignment(Qt::AlignCenter);
    label->SetTextColour(ToQColor(colour::DarkRed));
    return label;
}

} // namespace

DiceForm::DiceForm(QWidget* owner) : FixedDialog("DiceForm", "Dice Roller", {125, 146}, owner) {
    (new ShapeFrame("Shape1", QRect(3, 3, 115, 112), 30, this))->SetFill(QColor(224, 224, 224));
    (new ShapeFrame("Shape2", QRect(40, 39, 41, 41), 20, this))->SetFill(QColor(206, 206, 206));
    for (int i = 0; i < MaxDice; ++i) {
        const auto at = static_cast<std::size_t>(i);
        Label1[at] = MakeFigure(ElementName("Label1", i), PlaceCorners[at], LargeText, this);
        Label1[at]->SetHeading(QString("Dice place %1").arg(i + 1));
    }
    Coun = MakeFigure("Coun", {9, 120}, MediumText, this);
    Coun->SetHeading("Number of dice");

    auto* roll = new QPushButton("Roll!", this);
    NameAndPlace(*roll, "Command1", {67, 121, 49, 25});
    QFont plain = ComicFont(MediumText);
    plain.setBold(false);
    roll->setFont(plain);
    connect(roll, &QPushButton::clicked, this, &DiceForm::Command1_Click);

    Scroll = new SpinBar("Scroll", QRect(33, 120, 17, 25), this);
    Scroll->setAccessibleName("Number of dice");
    Scroll->SetCount({.AtZero = MaxDice, .Least = 1, .Most = MaxDice});
    Scroll->setRange(0, std::numeric_limits<std::int16_t>::max());
    connect(Scroll, &SpinBar::valueChanged, this, &DiceForm::Scroll_Change);
    Form_Load();
}

void DiceForm::Form_Load() {
    PlaceFromOwner({FromTwips(8400), FromTwips(500)});
    Scroll->setValue(OneDie);
}

void DiceForm::Scroll_Change() {
    if (Scroll->value() > OneDie) {
        Scroll->setValue(OneDie); // calls this handler again
        return;
    }
    Coun->SetCaption(QString::number(MaxDice - Scroll->value()));
}

void DiceForm::Command1_Click() {
    std::mt19937 generator(static_cast<unsigned>(QTime::currentTime().msecsSinceStartOfDay()));
    std::uniform_real_distribution<double> distribution;
    const DicePlaces rolled =
        RollDice(MaxDice - Scroll->value(), [&] { return distribution(generator); });
    QStringList said;
    for (std::size_t i = 0; i < rolled.size(); ++i) {
        Label1[i]->SetCaption(rolled[i] == 0 ? QString() : QString::number(rolled[i]));
        said << Label1[i]->Caption();
    }
    said.removeAll(QString());
    Announce(*this, said.join(", "));
}

} // namespace ksm
