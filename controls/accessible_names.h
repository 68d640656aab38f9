// What assistive technology hears of the controls.
#pragma once

class QAction;
class QObject;
class QString;
class QWidget;

namespace ksm {

/// Lets a label with a heading announce it with its caption ("Influence, Player 3: 7"), a drop-down
/// list its heading and its choice, and a bar the count that it stands for. Windows and messages
/// are known as such. Nothing is made until assistive technology asks.
void InstallAccessibleNames();

/// Tells that the name of a control is another; that of the one with the focus is said at once.
void AnnounceName(QWidget& renamed);

/// Has a screen reader say at once what came of something. `source` is where it happened.
void Announce(QObject& source, const QString& text);

/// Has the check mark of a menu item said when it changes, and when the item is looked at.
void AnnounceCheckMark(const QAction& item, QWidget& menuBar);

} // namespace ksm
