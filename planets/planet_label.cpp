#include "planets/planet_label.h"

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
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFocusPolicy(Qt::TabFocus);
}

void PlanetLabel::SetPlanet(const QString& name) {
    StopCarrying();
    StopDragging();
    if (name == text()) {
        return;
    }
    SetCaption(name);
    const int width = qCeil(QFontMetricsF(font()).horizontalAdvance(name));
    resize(width == 0 ? longestName : std::min(width, longestName), RowHeight);
}

void PlanetLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        // The keyboard may be carrying this planet, or another.
        if (auto* other = qobject_cast<PlanetLabel*>(window()->focusWidget())) {
            other->StopCarrying();
        }
        dragged = true;
        qApp->installEventFilter(this);
        grip = event->position().toPoint();
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
    const bool blocked = event->type() == QEvent::WindowBlocked;
    const bool released =
        event->type() == QEvent::MouseButtonRelease && watched->isWidgetType() && watched != this;
    if (blocked || released) {
        StopDragging();
    }
    return CaptionLabel::eventFilter(watched, event);
}

void PlanetLabel::StopDragging() {
    if (dragged) {
        dragged = false;
        qApp->removeEventFilter(this);
        if (outline) {
            outline->hide();
        }
    }
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
    if (carried) {
        carried = false;
        emit SetDown();
    } else if (!dragged && !text().isEmpty()) {
        setFocus();
        carried = true;
        emit PickedUp();
    }
}

void PlanetLabel::StopCarrying() {
    if (carried) {
        carried = false;
        emit PutBack();
    }
}

void PlanetLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (carried && (key == Qt::Key_Down || key == Qt::Key_Right)) {
        emit CarriedBy(+1);
    } else if (carried && (key == Qt::Key_Up || key == Qt::Key_Left)) {
        emit CarriedBy(-1);
    } else if (carried && key == Qt::Key_Escape) {
        StopCarrying();
    } else {
        CaptionLabel::keyPressEvent(event);
    }
}

void PlanetLabel::focusOutEvent(QFocusEvent* event) {
    StopCarrying();
    CaptionLabel::focusOutEvent(event);
}

} // namespace ksm
