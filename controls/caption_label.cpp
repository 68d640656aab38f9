#include "controls/caption_label.h"

#include "controls/accessible_names.h"
#include "controls/element_name.h"
#include "controls/fitting_font.h"
#include "controls/input.h"
#include "controls/look.h"
#include "controls/plain_tool_tip.h"
#include "controls/qt_values.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>

#include <cmath>

namespace ksm {

CaptionLabel::CaptionLabel(const QString& objectName, const QRect& place, QWidget* parent)
    : QWidget(parent) {
    NameAndPlace(*this, objectName, place);
}

void CaptionLabel::SetCaption(const QString& text) {
    if (text == caption) {
        return;
    }
    caption = text;
    fittedWidth = -1;
    update();
    AnnounceName(*this);
}

void CaptionLabel::SetAlignment(Qt::Alignment edges) {
    alignment = edges;
    update();
}

void CaptionLabel::SetColours(const ColourPair& colours) {
    SetColours(ToQColor(colours.Back), ToQColor(colours.Text));
}

void CaptionLabel::SetColours(const QColor& back, const QColor& text) {
    SetBackColour(back);
    SetTextColour(text);
}

void CaptionLabel::SetBackColour(const QColor& back) {
    setAutoFillBackground(true);
    SetColour(*this, QPalette::Window, back);
}

void CaptionLabel::SetTextColour(const QColor& ink) { SetColour(*this, QPalette::WindowText, ink); }

void CaptionLabel::SetHeading(const QString& text) {
    if (text != heading) {
        heading = text;
        AnnounceName(*this);
    }
}

QString CaptionLabel::Explanation() const {
    return explanation ? QString::fromStdString(explanation()) : QString();
}

void CaptionLabel::Fit() const {
    const int room = width();
    if (fittedWidth == room) {
        return;
    }
    fittedWidth = room;
    // No letter is narrower than a pixel, so no more of them than pixels can be seen.
    const QString start = caption.left(room + 1);
    const int smallest = smallestText != 0 ? smallestText : font().pixelSize() - 2;
    shownFont = FittingFont(font(), smallest, start, room);
    const QFontMetricsF metrics(shownFont);
    shownText = start;
    shownWidth = metrics.horizontalAdvance(shownText);
    if (shownWidth > room) {
        shownText = metrics.elidedText(start, Qt::ElideRight, room);
        shownWidth = metrics.horizontalAdvance(shownText);
    }
}

QPointF CaptionLabel::BaseLineStart(const QFontMetricsF& metrics) const {
    double x = 0;
    if (alignment.testFlag(Qt::AlignHCenter)) {
        x = (width() - shownWidth) / 2;
    } else if (alignment.testFlag(Qt::AlignRight)) {
        x = width() - shownWidth;
    }
    double y = metrics.ascent();
    if (alignment.testFlag(Qt::AlignVCenter)) {
        y = (height() + metrics.capHeight()) / 2;
    } else if (alignment.testFlag(Qt::AlignBottom)) {
        y = height();
    }
    return {std::round(x), std::round(y)};
}

void CaptionLabel::paintEvent(QPaintEvent*) {
    Fit();
    QPainter painter(this);
    painter.setFont(shownFont);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(BaseLineStart(QFontMetricsF(shownFont)), shownText);
    if (hasFocus()) {
        PaintFocus(painter);
    }
}

// The style's blue frame is lost on the players' colours: black or white, whichever stands out.
void CaptionLabel::PaintFocus(QPainter& painter) const {
    constexpr int Thick = 2;
    const int textWidth = painter.fontMetrics().horizontalAdvance(shownText);
    const int thickness = textWidth + 2 * Thick <= width() ? Thick : 1;
    const bool light = qGray(palette().color(QPalette::Window).rgb()) > 75;
    const QRegion inside = rect().adjusted(thickness, thickness, -thickness, -thickness);
    painter.setClipRegion(QRegion(rect()) - inside);
    painter.fillRect(rect(), light ? Qt::black : Qt::white);
}

bool CaptionLabel::event(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        fittedWidth = -1;
    }
    if (event->type() == QEvent::ToolTip) {
        Fit();
        QStringList lines{shownText == caption ? QString() : caption, Explanation()};
        lines.removeAll(QString());
        ShowPlainToolTip(*static_cast<QHelpEvent*>(event), lines.join('\n'), this);
        return true;
    }
    return QWidget::event(event);
}

void CaptionLabel::keyPressEvent(QKeyEvent* event) {
    const bool acts = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                      event->key() == Qt::Key_Enter;
    if (!acts || !IsClickable()) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        Activate();
    }
}

void CaptionLabel::Activate() {
    if (IsClickable() && TakesInput(*this)) {
        emit Clicked();
    }
}

void CaptionLabel::mousePressEvent(QMouseEvent* event) {
    pressed = IsClickable() && event->button() == Qt::LeftButton;
    if (!pressed) {
        QWidget::mousePressEvent(event);
    }
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed || event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    pressed = false;
    if (rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

} // namespace ksm
