#include "dialogs/about_form.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "controls/shape_frame.h"

#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>

namespace ksm {

namespace {

constexpr int ClientWidth = 356;
constexpr int TextLeft = 70;
constexpr int TextWidth = ClientWidth - 2 * TextLeft;

/// A drawing that is sharp at any scale.
class Picture : public QWidget {
public:
    Picture(const QString& objectName, const QString& drawing, const QRect& place, QWidget* parent)
        : QWidget(parent), renderer(drawing) {
        NameAndPlace(*this, objectName, place);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        renderer.render(&painter, rect());
    }

private:
    QSvgRenderer renderer;
};

CaptionLabel* MakeLine(const char* name, int top, const QString& text, QWidget* parent) {
    auto* label = new CaptionLabel(name, QRect(12, top, ClientWidth - 24, 15), parent);
    label->SetAlignment(Qt::AlignCenter);
    label->SetCaption(text);
    return label;
}

// An address can be selected and copied.
void MakeAddress(const char* name, const char* meaning, int top, const char* address,
                 QWidget* parent) {
    auto* box = new QLineEdit(address, parent);
    NameAndPlace(*box, name, {TextLeft, top, TextWidth, 19}, meaning);
    box->setFrame(false);
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignHCenter);
    SetColour(*box, QPalette::Base, ButtonFace());
    SetColour(*box, QPalette::Text, Qt::blue);
}

} // namespace

AboutForm::AboutForm(QWidget* owner)
    : FixedDialog("AboutForm", "About Korvane Astrell Manager", {ClientWidth, 305}, owner) {
    new ShapeFrame("Shape1", QRect(8, 8, ClientWidth - 16, 104), 6, this);
    new ShapeFrame("Shape2", QRect(8, 182, ClientWidth - 16, 56), 6, this);
    MakeLine("Label1", 18, "Korvane Astrell (2nd E.) Manager Version 2.0", this)
        ->setFont(BoldFont());
    MakeLine("Label3", 37, "A game aid for two to ten players around one board.", this);
    MakeLine("Label4", 53, "Written by the Korvane Astrell Manager developers.", this);
    MakeLine("Label5", 69, "Free software under the MIT licence.", this);
    MakeLine("Label6", 128, "Official Korvane Astrell Homepage:", this);
    MakeLine("Label7", 195, "UNofficial Korvane Astrell Site:", this);
    new Picture("Image1(0)", ":/ksm.svg", QRect(16, 123, 48, 48), this);
    new Picture("Image1(1)", ":/ship.svg", QRect(292, 123, 48, 48), this);
    new Picture("Image2(0)", ":/moon.svg", QRect(24, 194, 32, 32), this);
    new Picture("Image2(1)", ":/station.svg", QRect(300, 194, 32, 32), this);

    MakeAddress("Text3", "Web address of this program", 87,
                "https://manager.korvane-astrell.example/", this);
    MakeAddress("Text1", "Official Korvane Astrell Homepage", 146,
                "https://www.korvane-astrell.example/", this);
    MakeAddress("Text2", "UNofficial Korvane Astrell Site", 213,
                "https://fans.korvane-astrell.example/", this);

    auto* ok = new QPushButton("OK", this);
    NameAndPlace(*ok, "Command1", {(ClientWidth - 81) / 2, 246, 81, 25});
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &AboutForm::Command1_Click);

    QFont slanted = PlainFont();
    slanted.setItalic(true);
    MakeLine("Label2", 280, "Count every planet, keep every promise, rule the stars.", this)
        ->setFont(slanted);
    Form_Load();
}

// Its frame is not known before it is shown, but as thick as the owner's.
void AboutForm::Form_Load() {
    const QSize spare = parentWidget()->size() - size();
    PlaceFromOwner({spare.width() / 2, spare.height() / 2});
}

void AboutForm::Command1_Click() { close(); }

} // namespace ksm
