#include "dialogs/game_file_form.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "controls/message_box.h"
#include "controls/plain_tool_tip.h"
#include "controls/shape_frame.h"
#include "controls/twips.h"

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>

namespace ksm {

namespace {

constexpr QSize Client{149, 145};
constexpr QPoint FromOwner{FromTwips(50), FromTwips(660)};
constexpr QRect FramePlace{3, 2, 143, 141};
constexpr QRect CancelPlace{82, 112, 49, 25};
// Four whole rows fill the list.
constexpr QSize ListRow{0, 14};

constexpr auto Extension = ".ksm";
constexpr auto DefaultName = "savegame.ksm";

// Hidden files too, since a file may be called just ".ksm". The extension counts in small letters
// only: "A.KSM" would be completed to "A.KSM.ksm".
QStringList GameFiles() {
    return QDir().entryList({QString("*") + Extension},
                            QDir::Files | QDir::Hidden | QDir::CaseSensitive,
                            QDir::Name | QDir::IgnoreCase);
}

} // namespace

GameFileForm::GameFileForm(const GameFileDesign& design, FileUse use, QWidget* owner)
    : FixedDialog(design.FormName, design.Title, Client, owner), look(design),
      useFile(std::move(use)), File1(new QListWidget(this)),
      FileNam(new QLineEdit(DefaultName, this)) {
    setModal(true);
    BuildControls();
    PlaceFromOwner(FromOwner);
}

void GameFileForm::BuildControls() {
    new ShapeFrame("Shape1", FramePlace, 6, this);

    NameAndPlace(*File1, "File1", look.List, "Saved games");
    File1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const QString& name : GameFiles()) {
        auto* item = new QListWidgetItem(name, File1);
        item->setSizeHint(ListRow);
        item->setToolTip(TextAsHtml(name));
    }

    auto* label = new CaptionLabel("Label1", look.Label, this);
    label->SetCaption("Filename:");

    NameAndPlace(*FileNam, "FileNam", look.Box, "Filename");
    FileNam->setFont(NarrowFont());
    FileNam->installEventFilter(this);

    auto* confirm = new QPushButton(look.ButtonCaption, this);
    NameAndPlace(*confirm, look.ButtonName, look.Button);
    confirm->setDefault(true);
    confirm->setFocus();
    auto* cancel = new QPushButton("Cancel", this);
    NameAndPlace(*cancel, "Cance", CancelPlace);

    connect(confirm, &QPushButton::clicked, this, &GameFileForm::Confirm);
    connect(cancel, &QPushButton::clicked, this, &GameFileForm::Cance_Click);
    // A file is picked by the mouse or with the arrow keys.
    connect(File1, &QListWidget::itemClicked, this, &GameFileForm::File1_Click);
    connect(File1, &QListWidget::itemSelectionChanged, this, &GameFileForm::File1_Click);
    connect(File1, &QListWidget::itemDoubleClicked, this, &GameFileForm::File1_DblClick);
}

void GameFileForm::Confirm() {
    if (!FileNam->text().endsWith(Extension)) {
        FileNam->setText(FileNam->text() + Extension);
    }
    if (const Outcome<> used = useFile(FileNam->text()); used) {
        accept();
    } else {
        ShowMessage(QMessageBox::Critical, look.FailureTitle, look.FailureText,
                    QString::fromStdString(used.Reason()), this);
    }
}

bool GameFileForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == FileNam && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        FileNam_Click();
    }
    return FixedDialog::eventFilter(watched, event);
}

void GameFileForm::File1_Click() {
    if (const QListWidgetItem* item = File1->currentItem()) {
        FileNam->setText(item->text());
    }
}

void GameFileForm::File1_DblClick() {
    File1_Click();
    Confirm();
}

// The cursor stands before the extension, ready for the name.
void GameFileForm::FileNam_Click() {
    FileNam->setText(Extension);
    FileNam->setCursorPosition(0);
}

void GameFileForm::Cance_Click() { reject(); }

} // namespace ksm
