// The technology charts of the standard rules and of the expansion.
#pragma once

#include "controls/fixed_dialog.h"
#include "dialogs/tech_chart.h"

namespace ksm {

/// Shows the standard chart over the top left corner of its owner until it is clicked or closed.
class TechForm : public FixedDialog {
    Q_OBJECT

public:
    explicit TechForm(QWidget* owner);

protected:
    /// `shown` must outlive the window.
    TechForm(const char* objectName, const QString& title, const TechChart& shown, QWidget* owner);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Form_Load();
    void Form_Click();

    const TechChart& chart;
    bool pressed = false;
};

/// Shows the chart of the Corrin's End expansion.
class TechForm2 : public TechForm {
    Q_OBJECT

public:
    explicit TechForm2(QWidget* owner);
};

} // namespace ksm
