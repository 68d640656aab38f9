#include "controls/message_box.h"

#include <QLabel>

namespace ksm {

void ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                 const QString& reason, QWidget* parent) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setInformativeText(reason);
    // The format of the box is that of the reason, too, only from Qt 6.8 on.
    for (auto* label : box.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    box.exec();
}

} // namespace ksm
