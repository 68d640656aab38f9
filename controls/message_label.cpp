#include "controls/message_label.h"

#include "controls/accessible_names.h"
#include "controls/fitting_font.h"
#include "controls/plain_tool_tip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>

namespace ksm {

namespace {

// What is still read from across the table, and what is better than nothing.
constexpr int SmallestReadable = 9;
constexpr int SmallestText = 7;
constexpr int LongWord = 16;
constexpr int LongestOfNoName = 9; // "eachother" is the longest in a message with names
constexpr int Wrap = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

/// The text with an ellipsis in words of more letters than that.
QString WithShortWords(QString text, int letters) {
    const QRegularExpression longWord(QString(R"((\S{%1})\S{2,})").arg(letters - 1));
    return text.replace(longWord, QString("\\1") + QChar(0x2026));
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
        Announce(*this, accessibleName());
        Fit();
        update();
    }
}

void MessageLabel::Fit() {
    // The painter knows LF only. What lies behind that many letters has no room in any label.
    constexpr qsizetype MostLetters = 400;
    const QString lines = QString(caption).remove('\r').left(MostLetters);
    if (!TakeIfItFits(lines, SmallestReadable) &&
        !TakeIfItFits(WithShortWords(lines, LongWord), SmallestReadable)) {
        TakeIfItFits(WithShortWords(lines, LongestOfNoName), SmallestText);
    }
}

bool MessageLabel::TakeIfItFits(const QString& lines, int smallest) {
    bool fits = false;
    shownText = lines;
    shownFont = FittingFont(font(), smallest, [&](const QFont& tried) {
        const QRect needed = QFontMetrics(tried).boundingRect(rect(), Wrap, lines);
        fits = needed.width() <= width() && needed.height() <= height();
        return fits;
    });
    return fits;
}

void MessageLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(shownFont);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Wrap, shownText);
}

bool MessageLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool whole = shownFont == font();
        ShowPlainToolTip(*static_cast<QHelpEvent*>(event), whole ? QString() : caption, this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace ksm
