#include "controls/plain_tool_tip.h"

#include <QHelpEvent>
#include <QToolTip>

namespace ksm {

QString TextAsHtml(const QString& text) {
    constexpr qsizetype LongestUnbroken = 60;
    QStringList lines;
    for (const QString& line : text.split('\n')) {
        QString shown = line.toHtmlEscaped();
        lines << (line.size() > LongestUnbroken ? shown : shown.replace(' ', "&nbsp;"));
    }
    // The tags tell Qt that this is marked up, whatever the text holds.
    return text.isEmpty() ? QString() : "<p>" + lines.join("<br>") + "</p>";
}

void ShowPlainToolTip(const QHelpEvent& request, const QString& text, QWidget* control) {
    QToolTip::showText(request.globalPos(), TextAsHtml(text), control);
}

} // namespace ksm
