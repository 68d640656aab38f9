#include "controls/program_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace ksm {

namespace {

class SvgEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override {
        drawing.render(painter, place);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    // A window hands all of these to the window manager, so they are few and small.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {{16, 16}, {32, 32}, {64, 64}};
    }

    QIconEngine* clone() const override { return new SvgEngine; }

private:
    QSvgRenderer drawing{QStringLiteral(":/ksm.svg")};
};

} // namespace

QIcon ProgramIcon() {
    return QIcon(new SvgEngine);
}

} // namespace ksm
