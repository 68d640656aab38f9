// A drop-down list with a text that can be typed over.
#pragma once

#include <QComboBox>

namespace ksm {

/// Only an entry taken from the list counts as a choice, the present one included. What is typed
/// chooses nothing: when the focus leaves, the box shows its choice again. Up and Down open the
/// list, so that the keyboard too chooses one entry without passing over others.
class ChoiceBox : public QComboBox {
    Q_OBJECT

public:
    /// `caption` is what the box reads until something is chosen.
    ChoiceBox(const QString& objectName, QString caption, const QStringList& entries,
              QWidget* parent);

    /// Shows entry `index`, or the caption for -1; this is no choice.
    void ShowChoice(int index);
    /// What assistive technology calls the box: "Race, Player 3".
    void SetHeading(const QString& heading);

signals:
    void Chosen(int index);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void showPopup() override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Shows the choice in place of what was typed.
    void RestoreChoice(int index);
    void MakeLineEdit();
    /// Gives the text of a narrow box the room up to the arrow.
    void PlaceText();
    void FitText(const QString& text);

    QString emptyCaption;
};

} // namespace ksm
