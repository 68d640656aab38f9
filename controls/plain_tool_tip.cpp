#include "controls/plain_tool_tip.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace ksm {

QString PlainText(const QString& text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

void ShowPlainToolTip(const QHelpEvent& request, const QString& text, QWidget* control) {
    QToolTip::showText(request.globalPos(), PlainText(text), control);
}

} // namespace ksm
