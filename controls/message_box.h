// Message boxes with one OK button.
#pragma once

#include <QMessageBox>

namespace ksm {

/// Title of the boxes that speak for the program as a whole.
inline constexpr auto ProgramTitle = "Korvane Astrell Manager II";

/// Shows `text` as it stands, `reason` below it, and waits for OK.
void ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                 const QString& reason = {}, QWidget* parent = nullptr);

} // namespace ksm
