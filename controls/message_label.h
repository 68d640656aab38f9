// A label for messages of several lines.
#pragma once

#include <QWidget>

namespace ksm {

/// Shows a message that stays readable: where it does not fit, the condensed face is taken, then
/// long words get an ellipsis, and only then the letters become smaller. The whole of it is then
/// the tooltip. Lines end with CR LF.
class MessageLabel : public QWidget {
    Q_OBJECT

public:
    MessageLabel(const QString& objectName, const QRect& place, QWidget* parent);

    void SetCaption(const QString& text);
    const QString& Caption() const { return caption; }

    /// The message as it is drawn, with LF between its lines.
    const QString& ShownText() const { return shownText; }
    const QFont& ShownFont() const { return shownFont; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fit();
    bool TakeIfItFits(const QString& lines, int smallest);

    QString caption;
    QString shownText;
    QFont shownFont;
};

} // namespace ksm
