// A label whose caption is always plain text and always fits its place.
#pragma once

#include "model/colour.h"

#include <QWidget>

#include <functional>
#include <string>

class QFontMetricsF;

namespace ksm {

/// Shows a caption in one line. A caption wider than the label is drawn in the condensed face, up
/// to two pixels smaller (or what `SetSmallestText` says), and with an ellipsis where that is too
/// wide as well; the whole of it is then the tooltip.
///
/// Vertical alignment: `AlignTop` and `AlignVCenter` place the letters as usual; `AlignBottom` puts
/// the base line onto the lower edge, so that figures of any size stand on one line.
class CaptionLabel : public QWidget {
    Q_OBJECT

public:
    CaptionLabel(const QString& objectName, const QRect& place, QWidget* parent);

    /// Writes only a caption that differs.
    void SetCaption(const QString& text);
    /// The whole caption, also where less of it is drawn.
    const QString& Caption() const { return caption; }

    void SetAlignment(Qt::Alignment edges);
    /// Lets a caption shrink down to this size before less than all of it is drawn.
    void SetSmallestText(int pixels) { smallestText = pixels; }
    void SetColours(const ColourPair& colours);
    void SetColours(const QColor& back, const QColor& text);
    void SetBackColour(const QColor& back);
    void SetTextColour(const QColor& ink);

    /// What assistive technology says before the caption: "Influence, Player 3".
    void SetHeading(const QString& text);
    const QString& Heading() const { return heading; }

    /// What the tooltip and assistive technology say beside the caption; it is asked for when
    /// somebody wants to know. UTF-8.
    void SetExplanation(std::function<std::string()> explain) { explanation = std::move(explain); }
    QString Explanation() const;

    /// Lets the mouse, and Space or Return after Tab, click the label. The mouse leaves the focus
    /// where it is.
    void MakeClickable() { setFocusPolicy(Qt::TabFocus); }
    bool IsClickable() const { return focusPolicy() != Qt::NoFocus; }
    /// Does what Space or Return does: clicks a clickable label.
    virtual void Activate();

signals:
    void Clicked();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Fit() const;
    void PaintFocus(QPainter& painter) const;
    QPointF BaseLineStart(const QFontMetricsF& metrics) const;

    QString caption;
    QString heading;
    std::function<std::string()> explanation;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    int smallestText = 0;
    bool pressed = false;
    // What fits the label at this width; found when first needed after a change.
    mutable int fittedWidth = -1;
    mutable QString shownText;
    mutable QFont shownFont;
    mutable double shownWidth = 0;
};

} // namespace ksm
