// A label for messages of several lines.
#pragma once

#include <QWidget>

namespace ksm {

/// Shows the whole of its caption: where it does not fit, in the condensed face, and that as small
/// as needed. Its lines end with CR LF.
class MessageLabel : public QWidget {
    Q_OBJECT

public:
    MessageLabel(const QString& objectName, const QRect& place, QWidget* parent);

    void SetCaption(const QString& text);
    const QString& Caption() const { return caption; }

    /// The largest face in which the caption fits the label.
    QFont ShownFont() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString Lines() const;

    QString caption;
};

} // namespace ksm
