#include "controls/input.h"

#include <QApplication>
#include <QWidget>

namespace ksm {

bool TakesInput(const QWidget& control) {
    const QWidget* modal = QApplication::activeModalWidget();
    return control.isEnabled() && control.isVisible() &&
           (modal == nullptr || modal == control.window());
}

} // namespace ksm
