// What every window beside the main window has in common.
#pragma once

#include <QDialog>

namespace ksm {

/// A window of fixed size with a close box, placed by its frame relative to the frame of its owner.
/// Closing it in any way unloads (deletes) it. Escape closes a modal window, no other.
class FixedDialog : public QDialog {
    Q_OBJECT

public:
    /// `client` is the size without the frame, in pixels.
    FixedDialog(const char* objectName, const QString& title, QSize client, QWidget* owner);

protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Places this window's frame right of and below the owner's top left corner, in pixels.
    void PlaceFromOwner(QPoint offset);
};

} // namespace ksm
