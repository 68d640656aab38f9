#include "controls/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <qdrawutil.h>

#include <algorithm>

namespace ksm {

namespace {

QPalette LightPalette() {
    QPalette palette(ButtonFace());
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 220));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
    }
    return palette;
}

/// The first of the families that is installed. A font that names several has them all looked up
/// again for each size and weight.
QString Installed(const QStringList& families) {
    const QStringList installed = QFontDatabase::families();
    const auto found = std::ranges::find_if(
        families, [&](const QString& family) { return installed.contains(family); });
    return found == families.end() ? families.back() : *found;
}

QFont Font(const QString& family, int pixels, QFont::Weight weight) {
    QFont font(family);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

// The original faces first, then the substitutes with the same widths.

const QString& Sans() {
    static const QString family = Installed({"MS Sans Serif", "Liberation Sans"});
    return family;
}

const QString& Arial() {
    static const QString family = Installed({"Arial", "Liberation Sans"});
    return family;
}

const QString& Comic() {
    static const QString family = Installed({"Comic Sans MS", "Comic Neue"});
    return family;
}

/// Fusion, with a ring around the button that has the focus: its own can hardly be seen.
class Style : public QProxyStyle {
public:
    Style() : QProxyStyle("fusion") {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* control) const override {
        QProxyStyle::drawControl(element, option, painter, control);
        const bool isButton = element == CE_PushButton || element == CE_CheckBox;
        if (isButton && option->state.testFlag(State_HasFocus)) {
            qDrawPlainRect(painter, option->rect, option->palette.color(QPalette::Highlight), 2);
        }
    }
};

} // namespace

void ApplyLook() {
    QApplication::setStyle(new Style);
    QApplication::setPalette(LightPalette());
    QApplication::setFont(PlainFont());
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
}

void SetColour(QWidget& control, QPalette::ColorRole role, const QColor& colour) {
    QPalette painted = control.palette();
    if (painted.color(role) != colour) {
        painted.setColor(role, colour);
        control.setPalette(painted);
    }
}

QColor ButtonFace() { return {239, 239, 239}; }

QFont PlainFont(int pixels) { return Font(Sans(), pixels, QFont::Normal); }

QFont BoldFont(int pixels) { return Font(Sans(), pixels, QFont::Bold); }

QFont ArialFont(QFont::Weight weight) { return Font(Arial(), SmallText, weight); }

QFont NarrowFont(int pixels) {
    // The same on every system, whether a condensed family is installed or not, and as high.
    constexpr int Condensed = 82;
    QFont font = PlainFont(pixels);
    font.setStretch(Condensed);
    return font;
}

QFont ComicFont(int pixels) { return Font(Comic(), pixels, QFont::Bold); }

} // namespace ksm
