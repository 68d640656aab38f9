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

void FixedDialog::PlaceFromOwner(QPoint offset) {
    move(parentWidget()->pos() + offset);
}

void FixedDialog::CentreOverOwner() {
    // The frame of a window that was never shown is not known; the owner's is as thick.
    const QWidget* owner = parentWidget();
    const QSize spare = owner->size() - size();
    PlaceFromOwner({spare.width() / 2, spare.height() / 2});
}

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
