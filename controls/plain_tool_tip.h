// Tooltips whose text is taken as it is.
#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

namespace ksm {

/// HTML that shows the text as it stands. A tooltip would take a name with angle brackets for
/// markup. Long lines break at blanks, short ones do not.
QString TextAsHtml(const QString& text);

/// Answers a request for the tooltip of `control`; an empty text hides the one that is shown.
void ShowPlainToolTip(const QHelpEvent& request, const QString& text, QWidget* control);

} // namespace ksm
