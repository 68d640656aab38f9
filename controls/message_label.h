// A label for messages of several lines.
#pragma once

#include <QStringList>
#include <QWidget>

namespace ksm {

/// Shows a message that stays readable: where it does not fit, the condensed face is taken, then
/// long names in it are cut short, and only then the letters become smaller. The whole of it is
/// then the tooltip. Lines end with CR LF.
class MessageLabel : public QWidget {
    Q_OBJECT

public:
    MessageLabel(const QString& objectName, const QRect& place, QWidget* parent);

    /// `names` are those in the caption that may be cut short.
    void SetCaption(const QString& text, const QStringList& names = {});
    const QString& Caption() const { return caption; }

    /// The message as it is drawn, with LF between its lines.
    const QString& ShownText() const { return shownText; }
    const QFont& ShownFont() const { return shownFont; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fit(const QStringList& names);
    bool Fits(const QString& lines, const QFont& tried) const;
    bool TakeIfItFits(const QString& lines, int smallest);

    QString caption;
    QString shownText;
    QFont shownFont;
    bool isWhole = true; ///< whether no word has to be broken
};

} // namespace ksm
