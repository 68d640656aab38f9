#include "controls/accessible_names.h"

#include "controls/caption_label.h"
#include "controls/choice_box.h"
#include "controls/framed_bar.h"
#include "controls/input.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
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
        return child->object() == box->view() ? 0 : child->object() == box->lineEdit() ? 1 : -1;
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
    return nullptr;
}

} // namespace

void InstallAccessibleNames() {
    QAccessible::installFactory(MakeAccessible);
}

} // namespace ksm
