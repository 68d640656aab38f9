#include "dialogs/color_select_form.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/twips.h"
#include "model/player_labels.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <QValidator>

#include <limits>

namespace ksm {

namespace {

struct SwatchDesign {
    int Left = 0; ///< twips, as `Top`
    int Top = 0;
    const char* Name = "";
    ColourPair Colours;
};

// In the order of their numbers 1..12.
constexpr std::array<SwatchDesign, 12> Swatches{{
    {240, 1320, "Orange", {colour::Orange, colour::Black}},
    {240, 840, "White", {colour::White, colour::Black}},
    {240, 1080, "Yellow", {colour::Yellow, colour::Black}},
    {960, 840, "Black", {colour::Black, colour::White}},
    {600, 1320, "Dark green", {colour::DarkGreen, colour::White}},
    {960, 1320, "Blue", {colour::Blue, colour::White}},
    {600, 840, "Grey", {colour::Grey, colour::White}},
    {960, 1560, "Magenta", {colour::Magenta, colour::Black}},
    {600, 1560, "Pink", {colour::Pink, colour::Black}},
    {240, 1560, "Red", {colour::Red, colour::White}},
    {600, 1080, "Green", {colour::Green, colour::Black}},
    {960, 1080, "Navy", {colour::Navy, colour::White}},
}};

/// Makes a blank of whatever would break the one line of a name, such as a tab that was pasted.
class OneLine : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        static const QRegularExpression breaks(R"([\p{Cc}\p{Zl}\p{Zp}])");
        text.replace(breaks, " ");
        return Acceptable;
    }
};

// A letter with its accents, or an emoji of several parts, is one character.
QString FirstCharacters(const QString& text, int count) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (count-- > 0 && finder.toNextBoundary() >= 0) {
    }
    const auto end = finder.position();
    return end < 0 ? text : text.left(end);
}

QLineEdit* MakeEntry(const char* name, const char* meaning, const QRect& place, QWidget* parent) {
    auto* entry = new QLineEdit(parent);
    NameAndPlace(*entry, name, place, meaning);
    entry->setMaxLength(std::numeric_limits<int>::max());
    entry->setValidator(new OneLine(entry));
    return entry;
}

} // namespace

ColorSelectForm::ColorSelectForm(GameState& game, QWidget* owner)
    : QWidget(owner, Qt::Dialog | Qt::FramelessWindowHint), state(game),
      player(game.View.EditedPlayer) {
    setObjectName("ColorSelectForm");
    setWindowTitle(tr("Player %1").arg(player));
    setFixedSize(FromTwips(1590), FromTwips(2370));
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    MakeEntries();
    MakeSwatches();
    auto* ok = new QPushButton("OK", this);
    NameAndPlace(*ok, "ColorOK", TwipsRect(360, 1920, 855, 375));
    connect(ok, &QPushButton::clicked, this, &ColorSelectForm::ColorOK_Click);
}

void ColorSelectForm::MakeEntries() {
    NameEntry = MakeEntry("NameEntry", "Name", TwipsRect(45, 60, 1440, 330), this);
    NameEntry->setText("Name");
    (new CaptionLabel("Label1", TwipsRect(60, 480, 855, 255), this))->SetCaption("Short name");
    ShortNameEntry = MakeEntry("ShortNameEntry", "Short name", TwipsRect(975, 450, 495, 285), this);
    connect(NameEntry, &QLineEdit::textChanged, this, &ColorSelectForm::NameEntry_Change);
    connect(ShortNameEntry, &QLineEdit::textChanged, this, &ColorSelectForm::ShortNameEntry_Change);
}

void ColorSelectForm::MakeSwatches() {
    for (int number = 0; const SwatchDesign& design : Swatches) {
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
    const bool named = !state.Game.Player(player).Name.empty();
    // A text that differs from the design text "Name" counts as a change.
    NameEntry->setText(named ? QString::fromStdString(PlayerCaption(state.Game, player))
                             : QString());
}

void ColorSelectForm::NameEntry_Change(const QString& text) {
    const QString shortName = FirstCharacters(text, 3);
    SetName(state.Game, player, text.toStdString(), shortName.toStdString());
    ShortNameEntry->setText(shortName);
    emit Changed();
}

// Also runs when the name brings its short name along, which is no change of its own.
void ColorSelectForm::ShortNameEntry_Change(const QString& text) {
    const std::string shortName = text.toStdString();
    if (shortName != state.Game.Player(player).ShortName) {
        state.Game.Player(player).ShortName = shortName;
        emit Changed();
    }
}

void ColorSelectForm::NameColor_Click(int swatch) {
    SetColours(state.Game, player, Swatches.at(static_cast<std::size_t>(swatch - 1)).Colours);
    emit Changed();
}

void ColorSelectForm::ColorOK_Click() {
    emit Confirmed();
    close();
    // Not every window manager gives the focus back.
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
