#include "app/color_select_form.h"

#include "controls/caption_label.h"
#include "controls/look.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTextBoundaryFinder>

#include <limits>

namespace ksm {

namespace {

struct SwatchDesign {
    int Left; ///< twips, as `Top`
    int Top;
    const char* Name;
    ColourPair Colours;
};

// In the order of their numbers 1..12.
constexpr std::array<SwatchDesign, 12> Swatches{{
    {240, 1320, "Orange", {{255, 128, 0}, Black}},
    {240, 840, "White", {White, Black}},
    {240, 1080, "Yellow", {{255, 255, 0}, Black}},
    {960, 840, "Black", {Black, White}},
    {600, 1320, "Dark green", {{0, 128, 0}, White}},
    {960, 1320, "Blue", {{0, 0, 255}, White}},
    {600, 840, "Grey", {{128, 128, 128}, White}},
    {960, 1560, "Magenta", {{255, 0, 255}, Black}},
    {600, 1560, "Pink", {{255, 128, 128}, Black}},
    {240, 1560, "Red", {{255, 0, 0}, White}},
    {600, 1080, "Green", {{0, 255, 0}, Black}},
    {960, 1080, "Navy", {{0, 0, 128}, White}},
}};

QRect TwipsRect(int left, int top, int width, int height) {
    return {FromTwips(left), FromTwips(top), FromTwips(width), FromTwips(height)};
}

// A letter with its accents, or an emoji of several parts, is one character.
QString FirstCharacters(const QString& text, int count) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (count-- > 0 && finder.toNextBoundary() >= 0) {
    }
    const auto end = finder.position();
    return end < 0 ? text : text.left(end);
}

} // namespace

ColorSelectForm::ColorSelectForm(GameState& game, QWidget* owner)
    : QWidget(owner, Qt::Dialog | Qt::FramelessWindowHint), state(game) {
    setObjectName("ColorSelectForm");
    setWindowTitle(tr("Player %1").arg(state.EditedPlayer));
    setFixedSize(FromTwips(1590), FromTwips(2370));
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    MakeControls();
    MakeSwatches();
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("ColorOK");
    ok->setGeometry(TwipsRect(360, 1920, 855, 375));
    connect(ok, &QPushButton::clicked, this, &ColorSelectForm::ColorOK_Click);
}

void ColorSelectForm::MakeControls() {
    NameEntry = new QLineEdit("Name", this);
    NameEntry->setObjectName("NameEntry");
    NameEntry->setAccessibleName("Name");
    NameEntry->setGeometry(TwipsRect(45, 60, 1440, 330));
    auto* label = new CaptionLabel("Label1", TwipsRect(60, 480, 855, 255), this);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->SetCaption("Short name");
    ShortNameEntry = new QLineEdit(this);
    ShortNameEntry->setObjectName("ShortNameEntry");
    ShortNameEntry->setAccessibleName("Short name");
    ShortNameEntry->setGeometry(TwipsRect(975, 450, 495, 285));
    for (QLineEdit* entry : {NameEntry, ShortNameEntry}) {
        entry->setMaxLength(std::numeric_limits<int>::max());
    }
    connect(NameEntry, &QLineEdit::textChanged, this, &ColorSelectForm::NameEntry_Change);
    connect(ShortNameEntry, &QLineEdit::textChanged, this, &ColorSelectForm::ShortNameEntry_Change);
}

void ColorSelectForm::MakeSwatches() {
    int number = 0;
    for (const SwatchDesign& design : Swatches) {
        ++number;
        auto* swatch = new CaptionLabel(ElementName("NameColor", number),
                                        TwipsRect(design.Left, design.Top, 330, 270), this);
        swatch->SetColours(design.Colours);
        swatch->SetHeading(design.Name);
        swatch->MakeClickable();
        connect(swatch, &CaptionLabel::Clicked, this, [this, number] { NameColor_Click(number); });
    }
}

void ColorSelectForm::Form_Load() {
    const int player = state.EditedPlayer;
    const bool named = !state.Player(player).Name.empty();
    // A text that differs from the design text "Name" counts as a change.
    NameEntry->setText(named ? ToQString(PlayerCaption(state, player)) : QString());
}

void ColorSelectForm::NameEntry_Change(const QString& text) {
    const int player = state.EditedPlayer;
    const QString shortName = FirstCharacters(text, 3);
    state.Player(player).Name = text.toStdString();
    state.Controls[player].Named = true;
    state.Controls[player].ShortName = shortName.toStdString();
    ShortNameEntry->setText(shortName);
    emit PlayerChanged(player);
}

void ColorSelectForm::ShortNameEntry_Change(const QString& text) {
    state.Controls[state.EditedPlayer].ShortName = text.toStdString();
    emit PlayerChanged(state.EditedPlayer);
}

void ColorSelectForm::NameColor_Click(int swatch) {
    const ColourPair& colours = Swatches.at(static_cast<std::size_t>(swatch - 1)).Colours;
    PlayerControls& controls = state.Controls[state.EditedPlayer];
    controls.NameColours = colours;
    controls.TradeColours = colours;
    emit PlayerChanged(state.EditedPlayer);
}

void ColorSelectForm::ColorOK_Click() {
    emit Confirmed();
    close();
    // Not every window manager gives the keyboard back.
    parentWidget()->activateWindow();
}

void ColorSelectForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        ColorOK_Click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ColorSelectForm::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    NameEntry->setFocus();
    raise();
    activateWindow();
}

void ColorSelectForm::paintEvent(QPaintEvent*) {
    QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace ksm
