#include "planets/planet_label.h"

#include "controls/input.h"
#include "controls/shape_frame.h"

#include <QApplication>
#include <QKeyEvent>
#include <QtMath>

#include <algorithm>

namespace ksm {

namespace {

constexpr int RowHeight = 14;

} // namespace

PlanetLabel::PlanetLabel(const QString& objectName, QPoint place, int longest, QWidget* parent)
    : CaptionLabel(objectName, {place, QSize(longest, RowHeight)}, parent), longestName(longest) {
    setFocusPolicy(Qt::TabFocus);
}

void PlanetLabel::SetPlanet(const QString& name) {
    if (name == Caption()) {
        return;
    }
    SetCaption(name);
    // No letter is narrower than a pixel.
    const int width = qCeil(QFontMetricsF(font()).horizontalAdvance(name.left(longestName)));
    resize(width == 0 ? longestName : std::min(width, longestName), RowHeight);
}

void PlanetLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragged = true;
        qApp->installEventFilter(this);
        grip = event->position().toPoint();
        MoveOutline(event->globalPosition().toPoint());
        emit Pressed();
    }
}

void PlanetLabel::mouseMoveEvent(QMouseEvent* event) {
    if (dragged) {
        const QPoint global = event->globalPosition().toPoint();
        MoveOutline(global);
        emit DraggedTo(global);
    }
}

void PlanetLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (dragged && event->button() == Qt::LeftButton) {
        StopDragging();
        emit DroppedAt(event->globalPosition().toPoint());
    }
}

// A window or a menu that opens during a drag gets the release of the mouse button, or nobody does.
bool PlanetLabel::eventFilter(QObject* watched, QEvent* event) {
    const auto* control = qobject_cast<QWidget*>(watched);
    if (control && dragged) {
        const bool opened = event->type() == QEvent::Show && control->isWindow() &&
                            control->windowType() != Qt::ToolTip;
        const bool released = event->type() == QEvent::MouseButtonRelease && control != this;
        if (opened || released || event->type() == QEvent::WindowBlocked) {
            CancelDrag();
        }
    }
    return CaptionLabel::eventFilter(watched, event);
}

void PlanetLabel::StopDragging() {
    dragged = false;
    qApp->removeEventFilter(this);
    outline->hide();
}

void PlanetLabel::CancelDrag() {
    StopDragging();
    emit DragCancelled();
}

void PlanetLabel::MoveOutline(QPoint global) {
    if (!outline) {
        outline = new ShapeFrame("DragOutline", rect(), 0, window());
    }
    outline->setGeometry(QRect(window()->mapFromGlobal(global - grip), size()));
    outline->show();
    outline->raise();
}

void PlanetLabel::Activate() {
    if (!dragged && TakesInput(*this)) {
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
