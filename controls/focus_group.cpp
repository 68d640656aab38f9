#include "controls/focus_group.h"

#include <QKeyEvent>

#include <algorithm>

namespace ksm {

namespace {

bool CanHaveFocus(const QWidget* control) {
    return control->isVisible() && control->isEnabled() && control->focusProxy() == nullptr &&
           (control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

/// +1 or -1 for a key that moves the focus, else 0.
int StepOf(const QKeyEvent& event, FocusGroup::Keys keys) {
    const bool all = keys == FocusGroup::Keys::Arrows;
    switch (event.key()) {
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Down:
        return all ? 1 : 0;
    case Qt::Key_Up:
        return all ? -1 : 0;
    default:
        return 0;
    }
}

} // namespace

FocusGroup::FocusGroup(QList<QWidget*> controls, Keys moving, QObject* parent)
    : QObject(parent), members(std::move(controls)), keys(moving) {
    for (QWidget* member : members) {
        member->installEventFilter(this);
    }
}

bool FocusGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        last = static_cast<QWidget*>(watched);
    } else if (event->type() == QEvent::KeyPress && keys != Keys::None) {
        const int step = StepOf(*static_cast<QKeyEvent*>(event), keys);
        if (step != 0) {
            Move(step);
            return true;
        }
    }
    return false;
}

void FocusGroup::Move(int step) {
    const qsizetype count = members.size();
    qsizetype index = members.indexOf(last);
    for (qsizetype tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        if (CanHaveFocus(members[index])) {
            members[index]->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

QWidget* FocusGroup::First() const {
    const auto first = std::ranges::find_if(members, CanHaveFocus);
    return first == members.end() ? nullptr : *first;
}

QWidget* FocusGroup::Entry() const { return last && CanHaveFocus(last) ? last.data() : First(); }

void FocusGroup::MoveOn(QWidget& window, bool forward) {
    const auto groups = window.findChildren<FocusGroup*>();
    const auto groupOf = [&](QWidget* control) -> FocusGroup* {
        const auto found = std::ranges::find_if(
            groups, [&](const FocusGroup* group) { return group->members.contains(control); });
        return found == groups.end() ? nullptr : *found;
    };
    QWidget* const focused = window.focusWidget() ? window.focusWidget() : &window;
    // A group stands where its first control does.
    const FocusGroup* left = groupOf(focused);
    QWidget* const begin = left && left->First() ? left->First() : focused;
    QWidget* control = begin;
    do {
        control = forward ? control->nextInFocusChain() : control->previousInFocusChain();
        const FocusGroup* group = groupOf(control);
        if (CanHaveFocus(control) && (!group || (group != left && group->First() == control))) {
            (group ? group->Entry() : control)
                ->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    } while (control != begin);
}

} // namespace ksm
