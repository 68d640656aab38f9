#include "planets/planet_label.h"

#include "controls/input.h"

#include <QKeyEvent>
#include <QtMath>

#include <algorithm>

namespace ksm {

PlanetLabel::PlanetLabel(const QString& objectName, QPoint place, QWidget* parent)
    : CaptionLabel(objectName, {place, QSize()}, parent) {
    setFocusPolicy(Qt::TabFocus);
}

void PlanetLabel::SetPlanet(const QString& name, int longest) {
    if (name == Caption() && longest == longestName) {
        return;
    }
    longestName = longest;
    SetCaption(name);
    constexpr int RowHeight = 14;
    // No letter is narrower than a pixel.
    const int width = qCeil(QFontMetricsF(font()).horizontalAdvance(name.left(longest)));
    resize(width == 0 ? longest : std::min(width, longest), RowHeight);
}

void PlanetLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit Pressed(event->position().toPoint());
    }
}

void PlanetLabel::mouseMoveEvent(QMouseEvent* event) {
    emit MovedTo(event->globalPosition().toPoint());
}

void PlanetLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit ReleasedAt(event->globalPosition().toPoint());
    }
}

void PlanetLabel::Activate() {
    if (TakesInput(*this)) {
        emit Activated();
    }
}

void PlanetLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        emit Stepped(+1);
        break;
    case Qt::Key_Up:
    case Qt::Key_Left:
        emit Stepped(-1);
        break;
    case Qt::Key_Escape:
        emit Abandoned();
        break;
    default:
        CaptionLabel::keyPressEvent(event);
    }
}

void PlanetLabel::focusOutEvent(QFocusEvent* event) {
    emit Abandoned();
    CaptionLabel::focusOutEvent(event);
}

} // namespace ksm
