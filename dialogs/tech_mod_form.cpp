#include "dialogs/tech_mod_form.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/framed_bar.h"
#include "controls/twips.h"
#include "model/bounds.h"

#include <QPixmap>

namespace ksm {

namespace {

struct ColourColumn {
    const char* Name = "";
    int LabelLeft = 0; ///< twips, as all places here
    int BarLeft = 0;
    ColourPair Colours;
};

constexpr std::array<ColourColumn, 4> Columns{{
    {"Green", 120, 480, {colour::DarkGreen, colour::White}},
    {"Blue", 960, 1320, {colour::Blue, colour::White}},
    {"Red", 1800, 2160, {colour::Red, colour::White}},
    {"Yellow", 2640, 3000, {colour::DarkYellow, colour::Black}},
}};

QString Signed(int modifier) { return (modifier > 0 ? "+" : "") + QString::number(modifier); }

} // namespace

TechModForm::TechModForm(QWidget* owner)
    : FixedDialog("TechModForm", "Tech cost modifiers", {FromTwips(3480), FromTwips(1500)}, owner) {
    // A window without an icon of its own gets the program's, so this one gets an empty one.
    QPixmap nothing(16, 16);
    nothing.fill(Qt::transparent);
    setWindowIcon(nothing);
    setWindowFlags(Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    for (int index = 0; index < 4; ++index) {
        const auto at = static_cast<std::size_t>(index);
        const ColourColumn& column = Columns[at];
        const QString meaning = QString("%1 cost modifier").arg(column.Name);

        auto* label = new CaptionLabel(ElementName("TechModLabel", index),
                                       TwipsRect(column.LabelLeft, 600, 255, 255), this);
        label->SetColours(column.Colours);
        label->SetHeading(meaning);
        label->SetAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->SetCaption("0");
        TechModLabel[at] = label;

        auto* bar = new FramedBar(ElementName("VScroll1", index),
                                  TwipsRect(column.BarLeft, 120, 255, 1215), this);
        bar->setAccessibleName(meaning);
        bar->SetCount(
            {.AtZero = NeutralModifier, .Least = -NeutralModifier, .Most = NeutralModifier});
        bar->SetRange(0, MaxModifier, NeutralModifier);
        connect(bar, &FramedBar::valueChanged, this,
                [this, index](int position) { VScroll1_Change(index, position); });
    }
    // In the middle of the upper half, where it leaves the costs in view.
    PlaceFromOwner({204, 70});
}

void TechModForm::VScroll1_Change(int index, int position) {
    TechModLabel[static_cast<std::size_t>(index)]->SetCaption(Signed(NeutralModifier - position));
    emit ModifierChanged(index, MaxModifier - position);
}

} // namespace ksm
