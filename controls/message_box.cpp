#include "controls/message_box.h"

#include "controls/plain_tool_tip.h"

namespace ksm {

void ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                 const QString& reason, QWidget* parent) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    // The label of the reason has a format of its own; what a file holds may look like markup.
    if (!reason.isEmpty()) {
        box.setInformativeText(PlainText(reason));
    }
    box.exec();
}

} // namespace ksm
