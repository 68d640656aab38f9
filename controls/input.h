// Whether a control can be used just now.
#pragma once

class QWidget;

namespace ksm {

/// Mouse and keyboard do not reach a control that is disabled, hidden or behind a modal window.
/// Assistive technology and timers do: they must ask.
bool TakesInput(const QWidget& control);

} // namespace ksm
