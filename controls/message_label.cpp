#include "controls/message_label.h"

#include "controls/fitting_font.h"
#include "controls/plain_tool_tip.h"

#include <QHelpEvent>
#include <QPainter>

namespace ksm {

namespace {

// What is still read from across the table, and what is better than nothing.
constexpr int SmallestReadable = 9;
constexpr int SmallestText = 7;
constexpr int Wrap = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

/// The text with names of more letters than that ended by an ellipsis.
QString WithShortNames(QString text, const QStringList& names, qsizetype letters) {
    for (const QString& name : names) {
        if (name.size() > letters) {
            text.replace(name, name.left(letters - 1).trimmed() + QChar(0x2026));
        }
    }
    return text;
}

} // namespace

MessageLabel::MessageLabel(const QString& objectName, const QRect& place, QWidget* parent)
    : QWidget(parent) {
    setObjectName(objectName);
    setGeometry(place);
}

void MessageLabel::SetCaption(const QString& text, const QStringList& names) {
    if (text != caption) {
        caption = text;
        setAccessibleName(caption.simplified());
        Fit(names);
        update();
    }
}

void MessageLabel::Fit(const QStringList& names) {
    // The painter knows LF only.
    const QString lines = QString(caption).remove('\r');
    for (const qsizetype letters : {caption.size(), qsizetype{20}, qsizetype{12}, qsizetype{8}}) {
        if (TakeIfItFits(WithShortNames(lines, names, letters), SmallestReadable)) {
            return;
        }
    }
    // No label has room for more letters.
    constexpr qsizetype MostLetters = 200;
    TakeIfItFits(lines.left(MostLetters), SmallestText);
}

bool MessageLabel::TakeIfItFits(const QString& lines, int smallest) {
    constexpr qsizetype MostLetters = 400; // more never fit
    if (lines.size() > MostLetters) {
        return false;
    }
    shownText = lines;
    shownFont = FittingFont(font(), smallest, [&](const QFont& tried) {
        isWhole = Fits(lines, tried);
        return isWhole;
    });
    return isWhole;
}

bool MessageLabel::Fits(const QString& lines, const QFont& tried) const {
    const QRect needed = QFontMetrics(tried).boundingRect(rect(), Wrap, lines);
    return needed.width() <= width() && needed.height() <= height();
}

void MessageLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(shownFont);
    painter.setPen(palette().color(QPalette::WindowText));
    // A word that is longer than a line is broken where the line ends.
    const int flags = isWhole ? Wrap : Wrap | Qt::TextWrapAnywhere;
    painter.drawText(rect(), flags, shownText);
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
