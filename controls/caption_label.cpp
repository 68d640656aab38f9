#include "controls/caption_label.h"

#include "controls/look.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

namespace ksm {

namespace {

/// Where a label can have the keyboard, QLabel makes a text document of its text. Nobody needs it,
/// and it costs more than the rest of the label.
class NoDocument {
public:
    explicit NoDocument(QLabel& owner) : label(owner), policy(owner.focusPolicy()) {
        label.setFocusPolicy(Qt::NoFocus);
    }
    ~NoDocument() { label.setFocusPolicy(policy); }
    Q_DISABLE_COPY_MOVE(NoDocument)

private:
    QLabel& label;
    Qt::FocusPolicy policy;
};

} // namespace

CaptionLabel::CaptionLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

CaptionLabel::CaptionLabel(const QString& objectName, const QRect& place, QWidget* parent)
    : CaptionLabel(parent) {
    setObjectName(objectName);
    setGeometry(place);
}

void CaptionLabel::SetCaption(const QString& caption) {
    if (caption == text()) {
        return;
    }
    fittedWidth = -1;
    const NoDocument guard(*this);
    setText(caption);
}

void CaptionLabel::SetColours(const ColourPair& colours) {
    SetColours(ToQColor(colours.Back), ToQColor(colours.Text));
}

void CaptionLabel::SetColours(const QColor& back, const QColor& text) {
    if (autoFillBackground() && palette().color(QPalette::Window) == back &&
        palette().color(QPalette::WindowText) == text) {
        return;
    }
    QPalette painted = palette();
    painted.setColor(QPalette::Window, back);
    painted.setColor(QPalette::WindowText, text);
    setPalette(painted);
    setAutoFillBackground(true);
}

void CaptionLabel::SetBackColour(const QColor& back) {
    if (autoFillBackground() && palette().color(QPalette::Window) == back) {
        return;
    }
    QPalette painted = palette();
    painted.setColor(QPalette::Window, back);
    setPalette(painted);
    setAutoFillBackground(true);
}

void CaptionLabel::SetHeading(const QString& heading) {
    if (heading == accessibleDescription()) {
        return;
    }
    setAccessibleDescription(heading);
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void CaptionLabel::MakeClickable() {
    clickable = true;
    // Not by mouse: a click acts and leaves the keyboard where it is.
    setFocusPolicy(Qt::TabFocus);
}

QString CaptionLabel::ShownText() const {
    Fit();
    return shownText;
}

void CaptionLabel::Fit() const {
    const int room = contentsRect().width();
    if (fittedWidth == room) {
        return;
    }
    fittedWidth = room;
    shownText = text();
    shownFont = font();
    shownWidth = QFontMetricsF(shownFont).horizontalAdvance(shownText);
    if (shownWidth <= room) {
        return;
    }
    shownFont = NarrowFont(font().pixelSize());
    shownFont.setBold(font().bold());
    shownFont.setItalic(font().italic());
    while (QFontMetricsF(shownFont).horizontalAdvance(shownText) > room &&
           shownFont.pixelSize() > font().pixelSize() - 2) {
        shownFont.setPixelSize(shownFont.pixelSize() - 1);
    }
    const QFontMetricsF metrics(shownFont);
    shownText = metrics.elidedText(shownText, Qt::ElideRight, room);
    shownWidth = metrics.horizontalAdvance(shownText);
}

QPointF CaptionLabel::BaseLineStart(const QFontMetricsF& metrics) const {
    const QRectF place = contentsRect();
    double x = place.left();
    if (alignment() & Qt::AlignHCenter) {
        x += (place.width() - shownWidth) / 2;
    } else if (alignment() & Qt::AlignRight) {
        x += place.width() - shownWidth;
    }
    double y = place.top() + metrics.ascent();
    if (alignment() & Qt::AlignVCenter) {
        y = place.top() + (place.height() + metrics.capHeight()) / 2;
    } else if (alignment() & Qt::AlignBottom) {
        y = place.bottom();
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
    if (event->type() == QEvent::Polish) {
        const NoDocument guard(*this);
        return QLabel::event(event);
    }
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        // A name may look like markup; the tooltip must show it as it was typed.
        QToolTip::showText(help->globalPos(),
                           ShownText() == text() ? QString() : Qt::convertFromPlainText(text()),
                           this);
        return true;
    }
    return QLabel::event(event);
}

void CaptionLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        fittedWidth = -1;
    }
    QLabel::changeEvent(event);
}

void CaptionLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void CaptionLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void CaptionLabel::keyPressEvent(QKeyEvent* event) {
    const bool acts = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                      event->key() == Qt::Key_Enter;
    if (!acts || focusPolicy() == Qt::NoFocus) {
        QLabel::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        Activate();
    }
}

void CaptionLabel::Activate() {
    if (clickable) {
        emit Clicked();
    }
}

void CaptionLabel::mousePressEvent(QMouseEvent* event) {
    if (!clickable || event->button() != Qt::LeftButton) {
        QLabel::mousePressEvent(event);
        return;
    }
    pressed = true;
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed || event->button() != Qt::LeftButton) {
        QLabel::mouseReleaseEvent(event);
        return;
    }
    pressed = false;
    if (rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

} // namespace ksm
