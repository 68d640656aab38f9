#include "controls/fixed_dialog.h"

#include <QKeyEvent>

namespace ksm {

FixedDialog::FixedDialog(const char* objectName, const QString& title, QSize client, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                         Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint) {
    setObjectName(objectName);
    setWindowTitle(title);
    setFixedSize(client);
    setAttribute(Qt::WA_DeleteOnClose);
}

void FixedDialog::PlaceFromOwner(QPoint offset) { move(parentWidget()->pos() + offset); }

void FixedDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !isModal()) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

void FixedDialog::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    // Not every window manager gives the focus back.
    if (isModal() && parentWidget()->isVisible()) {
        parentWidget()->activateWindow();
    }
}

} // namespace ksm
