// A label for messages of several lines.
#pragma once

#include <QLabel>

namespace ksm {

/// Shows the whole of its caption: where it does not fit, in the condensed face, and that as small
/// as needed.
class MessageLabel : public QLabel {
    Q_OBJECT

public:
    MessageLabel(const QString& objectName, const QRect& place, QWidget* parent);

    void SetCaption(const QString& caption);

    /// The largest face in which the caption fits the label.
    QFont FittingFont() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ksm
