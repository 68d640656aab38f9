#include "controls/shape_frame.h"

#include "controls/element_name.h"
#include "controls/even_drawing.h"

#include <QPaintEvent>
#include <QPainter>

namespace ksm {

ShapeFrame::ShapeFrame(const QString& objectName, const QRect& place, int radius, QWidget* parent)
    : QWidget(parent), cornerRadius(radius) {
    NameAndPlace(*this, objectName, place);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeFrame::paintEvent(QPaintEvent* event) {
    // It lies over all of a panel: what changes inside leaves the frame as it is.
    const int edge = cornerRadius + 1;
    if (fill.style() == Qt::NoBrush &&
        rect().adjusted(edge, edge, -edge, -edge).contains(event->rect())) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(110, 110, 110));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

LineControl::LineControl(const QString& objectName, const QRect& place, QWidget* parent)
    : QWidget(parent) {
    // At a scale such as 1.5 a pixel is sometimes one of the device and sometimes two: a line that
    // is as thick everywhere needs more room than its own.
    NameAndPlace(*this, objectName, place.adjusted(0, 0, 1, 1));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double scale = painter.deviceTransform().m11();
    const QSize covered = (QSizeF(size() - QSize(1, 1)) * scale).toSize();
    painter.fillRect(QRectF(OnDevicePixel(painter, {}), QSizeF(covered) / scale), Qt::black);
}

} // namespace ksm
