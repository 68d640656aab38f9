#include "controls/accessible_names.h"

#include "controls/caption_label.h"
#include "controls/choice_box.h"
#include "controls/framed_bar.h"
#include "controls/input.h"
#include "controls/message_label.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QAction>
#include <QDialog>
#include <QLineEdit>

namespace ksm {

namespace {

/// The name is put together when somebody asks, so a figure that changes costs nothing more.
class AccessibleCaption : public QAccessibleWidget {
public:
    explicit AccessibleCaption(CaptionLabel* captionLabel)
        : QAccessibleWidget(captionLabel), label(captionLabel) {}

    // Asked for again and again, since a label may become clickable late.
    QAccessible::Role role() const override {
        return label->IsClickable() ? QAccessible::Button : QAccessible::StaticText;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description) {
            return label->Explanation();
        }
        if (kind != QAccessible::Name) {
            return {};
        }
        const QString heading = label->Heading();
        const bool both = !heading.isEmpty() && !label->Caption().isEmpty();
        return heading + (both ? ": " : "") + label->Caption();
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (label->IsClickable() && TakesInput(*label)) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction()) {
            label->Activate();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    CaptionLabel* label;
};

/// Qt names a combo box after its text alone.
class AccessibleChoice : public QAccessibleWidget {
public:
    explicit AccessibleChoice(ChoiceBox* choiceBox)
        : QAccessibleWidget(choiceBox, QAccessible::ComboBox), box(choiceBox) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? box->currentText() : QAccessibleWidget::text(kind);
    }

    // As Qt has it: the list, which need not be open, and the text.
    int childCount() const override { return 2; }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(index == 0 ? static_cast<QWidget*>(box->view())
                                                                : box->lineEdit());
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child->object() == box->view()) {
            return 0;
        }
        return child->object() == box->lineEdit() ? 1 : -1;
    }

    QStringList actionNames() const override {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != showMenuAction()) {
            QAccessibleWidget::doAction(name);
        } else if (box->view()->isVisible()) {
            box->hidePopup();
        } else {
            box->showPopup();
        }
    }

private:
    QComboBox* box;
};

/// Says the count where a bar has one, and its position elsewhere.
class AccessibleBar : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleBar(FramedBar* framedBar) : QAccessibleWidget(framedBar), bar(framedBar) {}

    QAccessible::Role role() const override {
        return bar->AnnouncedCount() ? QAccessible::SpinBox : QAccessible::ScrollBar;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? currentValue().toString()
                                          : QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return Translate(bar->value()); }
    void setCurrentValue(const QVariant& value) override {
        if (TakesInput(*bar)) {
            bar->setValue(Translate(value.toInt()));
        }
    }
    QVariant minimumValue() const override {
        const auto& count = bar->AnnouncedCount();
        return count ? count->Least : bar->minimum();
    }
    QVariant maximumValue() const override {
        const auto& count = bar->AnnouncedCount();
        return count ? count->Most : bar->maximum();
    }
    QVariant minimumStepSize() const override { return 1; }

private:
    /// From position to count, and back.
    int Translate(int value) const {
        const auto& count = bar->AnnouncedCount();
        return count ? count->AtZero - value : value;
    }

    FramedBar* bar;
};

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

/// Before Qt 6.8 nothing announces. A notification that comes into sight is read aloud, though, and
/// this one is in sight for nobody else.
class Notice : public QObject {
public:
    using QObject::QObject;

    QString Text;
};

class AccessibleNotice : public QAccessibleObject {
public:
    explicit AccessibleNotice(Notice* shown) : QAccessibleObject(shown), notice(shown) {}

    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? notice->Text : QString();
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(notice->parent());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

private:
    Notice* notice;
};

#endif

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    if (auto* label = qobject_cast<CaptionLabel*>(object)) {
        return new AccessibleCaption(label);
    }
    if (auto* box = qobject_cast<ChoiceBox*>(object)) {
        return new AccessibleChoice(box);
    }
    if (auto* bar = qobject_cast<FramedBar*>(object)) {
        return new AccessibleBar(bar);
    }
    if (auto* message = qobject_cast<MessageLabel*>(object)) {
        return new QAccessibleWidget(message, QAccessible::StaticText);
    }
    // A window whose Enter and Escape are its own is no dialog of Qt's.
    auto* window = qobject_cast<QWidget*>(object);
    if (window && window->windowType() == Qt::Dialog && !qobject_cast<QDialog*>(window)) {
        return new QAccessibleWidget(window, QAccessible::Dialog);
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    if (auto* notice = dynamic_cast<Notice*>(object)) {
        return new AccessibleNotice(notice);
    }
#endif
    return nullptr;
}

} // namespace

void InstallAccessibleNames() { QAccessible::installFactory(MakeAccessible); }

void AnnounceName(QWidget& renamed) {
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent event(&renamed, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // The event tells no name there, and a reader drops it.
    if (renamed.hasFocus()) {
        Announce(renamed, QAccessible::queryAccessibleInterface(&renamed)->text(QAccessible::Name));
    }
#endif
}

void Announce(QObject& source, const QString& text) {
    if (!QAccessible::isActive()) {
        return;
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    constexpr auto Name = "Notice";
    auto* notice = static_cast<Notice*>(
        source.findChild<QObject*>(QLatin1StringView(Name), Qt::FindDirectChildrenOnly));
    if (!notice) {
        notice = new Notice(&source);
        notice->setObjectName(QLatin1StringView(Name));
    }
    notice->Text = text;
    QAccessibleEvent said(notice, QAccessible::ObjectShow);
#else
    QAccessibleAnnouncementEvent said(&source, text);
#endif
    QAccessible::updateAccessibility(&said);
}

void AnnounceCheckMark(const QAction& item, QWidget& menuBar) {
    const auto say = [&item, &menuBar] {
        const QString mark = item.isChecked() ? ": checked" : ": not checked";
        Announce(menuBar, item.text() + mark);
    };
    QObject::connect(&item, &QAction::toggled, &menuBar, say);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // A reader is told of no mark there.
    QObject::connect(&item, &QAction::hovered, &menuBar, say);
#endif
}

} // namespace ksm
