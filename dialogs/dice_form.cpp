#include "dialogs/dice_form.h"

#include "controls/caption_label.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "controls/spin_bar.h"

#include <QPushButton>
#include <QTime>

#include <cstdint>
#include <limits>
#include <random>

namespace ksm {

namespace {

constexpr Colour DiceRed{0xC0, 0, 0};
constexpr int PlaceSize = 25;

// A place in the middle and six around it.
constexpr std::array<QPoint, MaxDice> PlaceCorners{
    {{48, 47}, {89, 63}, {8, 23}, {48, 7}, {88, 24}, {48, 83}, {8, 63}}};

// The spinner runs against the count: its lowest usable position shows one die.
constexpr int OneDie = MaxDice - 1;

CaptionLabel* MakeFigure(const QString& name, QPoint corner, int pixels, QWidget* parent) {
    auto* label = new CaptionLabel(name, QRect(corner, QSize(PlaceSize, PlaceSize)), parent);
    label->setFont(ComicFont(pixels));
    label->setAlignment(Qt::AlignCenter);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, ToQColor(DiceRed));
    label->setPalette(palette);
    return label;
}

} // namespace

DiceForm::DiceForm(QWidget* owner) : FixedDialog("DiceForm", "Dice Roller", {125, 146}, owner) {
    (new ShapeFrame("Shape1", QRect(3, 3, 115, 112), 30, this))->SetFill(QColor(224, 224, 224));
    (new ShapeFrame("Shape2", QRect(40, 39, 41, 41), 20, this))->SetFill(QColor(206, 206, 206));
    for (int i = 0; i < MaxDice; ++i) {
        const auto at = static_cast<std::size_t>(i);
        places[at] = MakeFigure(ElementName("Label1", i), PlaceCorners[at], LargeText, this);
        places[at]->SetHeading(QString("Dice place %1").arg(i + 1));
    }
    coun = MakeFigure("Coun", {9, 120}, MediumText, this);
    coun->SetHeading("Number of dice");

    auto* command1 = new QPushButton("Roll!", this);
    command1->setObjectName("Command1");
    command1->setGeometry(67, 121, 49, 25);
    QFont plain = ComicFont(MediumText);
    plain.setBold(false);
    command1->setFont(plain);
    connect(command1, &QPushButton::clicked, this, &DiceForm::Command1_Click);

    scroll = new SpinBar("Scroll", QRect(33, 120, 17, 25), this);
    scroll->setAccessibleName("Number of dice");
    scroll->SetCount({.AtZero = MaxDice, .Least = 1, .Most = MaxDice});
    scroll->setRange(0, std::numeric_limits<std::int16_t>::max());
    connect(scroll, &SpinBar::valueChanged, this, &DiceForm::Scroll_Change);
    Form_Load();
}

void DiceForm::Form_Load() {
    PlaceFromOwner({FromTwips(8400), FromTwips(500)});
    scroll->setValue(OneDie);
}

void DiceForm::Scroll_Change() {
    if (scroll->value() > OneDie) {
        scroll->setValue(OneDie); // comes back here when it is new
        return;
    }
    coun->SetCaption(QString::number(MaxDice - scroll->value()));
}

void DiceForm::Command1_Click() {
    std::mt19937 generator(static_cast<unsigned>(QTime::currentTime().msecsSinceStartOfDay()));
    std::uniform_real_distribution<double> distribution;
    const DicePlaces rolled =
        RollDice(coun->text().toInt(), [&] { return distribution(generator); });
    for (std::size_t i = 0; i < rolled.size(); ++i) {
        places[i]->SetCaption(rolled[i] == 0 ? QString() : QString::number(rolled[i]));
    }
}

} // namespace ksm
