// Controls that share one stop of the Tab key.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ksm {

/// Tab enters the group where the focus last was in it, and leaves it with the next press; the
/// arrow keys move the focus inside. Controls that are hidden or disabled are passed over.
class FocusGroup : public QObject {
    Q_OBJECT

public:
    /// Which keys move the focus; a control may need the others itself.
    enum class Keys { Arrows, LeftAndRight, None };

    FocusGroup(QList<QWidget*> controls, Keys moving, QObject* parent);

    /// Moves the focus to the next control (+1) or the previous (-1), round and round.
    void Move(int step);

    /// Does what the Tab key does in a window with groups.
    static void MoveOn(QWidget& window, bool forward);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Where Tab enters; null where nothing can have the focus.
    QWidget* Entry() const;
    QWidget* First() const;

    QList<QWidget*> members;
    Keys keys;
    QPointer<QWidget> last; ///< the member that had the focus last
};

} // namespace ksm
