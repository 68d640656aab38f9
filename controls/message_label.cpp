#include "controls/message_label.h"

#include "controls/fitting_font.h"
#include "controls/plain_tool_tip.h"

#include <QHelpEvent>
#include <QPainter>

namespace ksm {

namespace {

constexpr int SmallestText = 7;
constexpr int Wrap = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

bool Fits(const QString& lines, const QFont& font, const QRect& place) {
    const QRect needed = QFontMetrics(font).boundingRect(place, Wrap, lines);
    return needed.width() <= place.width() && needed.height() <= place.height();
}

} // namespace

MessageLabel::MessageLabel(const QString& objectName, const QRect& place, QWidget* parent)
    : QWidget(parent) {
    setObjectName(objectName);
    setGeometry(place);
}

void MessageLabel::SetCaption(const QString& text) {
    if (text != caption) {
        caption = text;
        setAccessibleName(caption.simplified());
        update();
    }
}

// The painter knows LF only, and no label has room for more letters.
QString MessageLabel::Lines() const {
    constexpr qsizetype MostLetters = 400;
    return caption.left(MostLetters).remove('\r');
}

QFont MessageLabel::ShownFont() const {
    const QString lines = Lines();
    return FittingFont(font(), SmallestText,
                       [&](const QFont& tried) { return Fits(lines, tried, rect()); });
}

void MessageLabel::paintEvent(QPaintEvent*) {
    const QFont fitting = ShownFont();
    const QString lines = Lines();
    QPainter painter(this);
    painter.setFont(fitting);
    painter.setPen(palette().color(QPalette::WindowText));
    // A name without blanks that is longer than a line is broken where the line ends.
    const int flags = Fits(lines, fitting, rect()) ? Wrap : Wrap | Qt::TextWrapAnywhere;
    painter.drawText(rect(), flags, lines);
}

bool MessageLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        ShowPlainToolTip(*static_cast<QHelpEvent*>(event),
                         ShownFont() == font() ? QString() : caption, this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace ksm
