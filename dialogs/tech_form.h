// The window of a technology chart.
#pragma once

#include "controls/fixed_dialog.h"
#include "dialogs/tech_chart.h"

namespace ksm {

/// Shows a chart over the top left corner of its owner until it is clicked or closed.
class TechForm : public FixedDialog {
    Q_OBJECT

public:
    /// `shown` must outlive the window.
    TechForm(const char* objectName, const TechChart& shown, QWidget* owner);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Form_Click();

    const TechChart& chart;
    bool pressed = false;
};

} // namespace ksm
