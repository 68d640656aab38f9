#include "trade/message_label.h"

#include "controls/look.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace ksm {

namespace {

constexpr int SmallestText = 7;
constexpr int Wrap = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

// A caption's lines end with CR LF; the painter knows LF only.
QString Lines(const QString& caption) {
    return QString(caption).remove('\r');
}

bool Fits(const QString& lines, const QFont& font, const QRect& place) {
    const QRect needed = QFontMetrics(font).boundingRect(place, Wrap, lines);
    return needed.width() <= place.width() && needed.height() <= place.height();
}

} // namespace

MessageLabel::MessageLabel(const QString& objectName, const QRect& place, QWidget* parent)
    : QLabel(parent) {
    setObjectName(objectName);
    setGeometry(place);
    setTextFormat(Qt::PlainText);
}

void MessageLabel::SetCaption(const QString& caption) {
    if (caption != text()) {
        setText(caption);
        setAccessibleName(caption.simplified());
    }
}

QFont MessageLabel::FittingFont() const {
    const QString lines = Lines(text());
    if (Fits(lines, font(), contentsRect())) {
        return font();
    }
    QFont narrow = NarrowFont(font().pixelSize());
    while (narrow.pixelSize() > SmallestText && !Fits(lines, narrow, contentsRect())) {
        narrow.setPixelSize(narrow.pixelSize() - 1);
    }
    return narrow;
}

void MessageLabel::paintEvent(QPaintEvent*) {
    const QFont fitting = FittingFont();
    const QString lines = Lines(text());
    QPainter painter(this);
    painter.setFont(fitting);
    painter.setPen(palette().color(QPalette::WindowText));
    // A name without blanks that is longer than a line is broken where the line ends.
    const int flags = Fits(lines, fitting, contentsRect()) ? Wrap : Wrap | Qt::TextWrapAnywhere;
    painter.drawText(contentsRect(), flags, lines);
}

bool MessageLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const bool whole = FittingFont() == font();
        QToolTip::showText(help->globalPos(), whole ? QString() : Qt::convertFromPlainText(text()),
                           this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace ksm
