#include "controls/choice_box.h"

#include "controls/fitting_font.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <array>

namespace ksm {

ChoiceBox::ChoiceBox(const QString& objectName, QString caption, const QStringList& entries,
                     QWidget* parent)
    : QComboBox(parent), emptyCaption(std::move(caption)) {
    setObjectName(objectName);
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus); // none by the wheel, which does nothing here
    MakeLineEdit();
    // Not a shared model: setting one makes the whole drop-down list at once.
    addItems(entries);
    // A combo box would take a typed text that equals an entry for a choice.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textChanged, this, &ChoiceBox::FitText);
    connect(this, &QComboBox::activated, this, &ChoiceBox::Chosen);
    RestoreChoice(-1);
}

void ChoiceBox::MakeLineEdit() {
    auto* edit = new QLineEdit(this);
    // A combo box gives an edit without a completer one, which costs more than the box itself.
    QCompleter none;
    edit->setCompleter(&none);
    setLineEdit(edit);
    setCompleter(nullptr);
}

void ChoiceBox::ShowChoice(int index) {
    if (index != currentIndex()) {
        RestoreChoice(index);
    }
}

void ChoiceBox::RestoreChoice(int index) {
    setCurrentIndex(index);
    const QString& text = index >= 0 ? itemText(index) : emptyCaption;
    // A screen reader is told of every text that is set, also of the same one.
    if (lineEdit()->text() != text) {
        setEditText(text);
    }
    lineEdit()->setCursorPosition(0);
}

void ChoiceBox::SetHeading(const QString& heading) {
    setAccessibleName(heading);
    lineEdit()->setAccessibleName(heading);
}

void ChoiceBox::FitText(const QString& text) {
    if (!isVisible()) {
        return; // its place may change until it is shown
    }
    // A line edit keeps two pixels on either side and one for the caret.
    const int room = lineEdit()->width() - 5;
    constexpr int SmallestText = 8;
    const QFont fitting = FittingFont(font(), SmallestText, text, room);
    if (lineEdit()->font() != fitting) {
        lineEdit()->setFont(fitting);
    }
}

bool ChoiceBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // The main window's Ctrl+X, Ctrl+Z and Ctrl+Shift+Z come before the line edit's.
        const auto* key = static_cast<QKeyEvent*>(event);
        for (const auto edit : {QKeySequence::Cut, QKeySequence::Undo, QKeySequence::Redo}) {
            if (key->matches(edit)) {
                event->ignore();
                return false;
            }
        }
    }
    return QComboBox::event(event);
}

void ChoiceBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        RestoreChoice(currentIndex());
    }
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    constexpr std::array openers{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (std::ranges::find(openers, event->key()) != openers.end()) {
        showPopup();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event) {
    // The style places the text anew whenever the box changes.
    if (watched == lineEdit() && event->type() == QEvent::Resize) {
        PlaceText();
    }
    return QComboBox::eventFilter(watched, event);
}

void ChoiceBox::PlaceText() {
    // The style leaves a margin between text and arrow; a narrow box has no room for it.
    constexpr int ArrowWidth = 15;
    constexpr int NarrowBox = 70;
    if (width() < NarrowBox) {
        lineEdit()->setGeometry(1, 1, width() - 1 - ArrowWidth, height() - 2);
    }
    FitText(currentText());
}

void ChoiceBox::showEvent(QShowEvent* event) {
    QComboBox::showEvent(event);
    FitText(currentText());
}

void ChoiceBox::showPopup() {
    view()->setAccessibleName(accessibleName());
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * view()->frameWidth());
    QComboBox::showPopup();
}

void ChoiceBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace ksm
