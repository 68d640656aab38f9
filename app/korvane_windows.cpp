// The windows that the main window opens, and how they close with it.

#include "app/korvane.h"
#include "app/main_menu.h"
#include "controls/caption_label.h"
#include "controls/message_box.h"
#include "controls/twips.h"
#include "dialogs/about_form.h"
#include "dialogs/color_select_form.h"
#include "dialogs/dice_form.h"
#include "dialogs/game_file_form.h"
#include "dialogs/note_form.h"
#include "dialogs/tech_form.h"
#include "dialogs/tech_mod_form.h"
#include "economy/player_table.h"
#include "saves/game_file.h"
#include "saves/kept_files.h"
#include "saves/kept_game.h"

#include <QApplication>

namespace ksm {

namespace {

// In the order in which they close with the main window. Nobody can close it before the name dialog
// and the cost modifiers are closed.
constexpr std::array ChildWindows{"DiceForm", "TechForm", "TechForm2", "AboutForm",
                                  "SaveForm", "LoadForm", "NoteForm"};

// Shows the one window of this kind, made when it is not open yet.
template<typename Form, typename... Arguments>
Form* Open(QWidget* owner, MainMenu* menu, Arguments&... arguments) {
    auto* form = owner->findChild<Form*>();
    if (!form) {
        form = new Form(arguments..., owner);
        menu->WorkIn(form);
    }
    form->show();
    form->raise();
    form->activateWindow();
    return form;
}

// Makes a modal window of this kind: the main window accepts no input until it is closed.
template<typename Form, typename... Arguments>
Form* OpenModal(QWidget* owner, Arguments&... arguments) {
    auto* form = new Form(arguments..., owner);
    form->open();
    return form;
}

} // namespace

void Korvane::LGame_Click() {
    const auto load = [this](const QString& name) { return LoadGame(name); };
    OpenModal<GameFileForm>(this, LoadDesign, load);
}

void Korvane::SGame_Click() {
    if (kept && !kept->LastOutcome()) {
        ShowMessage(QMessageBox::Warning, ProgramTitle,
                    QString("The running game is not kept in \"%1\".").arg(KeptGameName),
                    QString::fromStdString(kept->LastOutcome().Reason()), this);
    }
    const auto save = [this](const QString& name) { return SaveGameFile(name, state); };
    OpenModal<GameFileForm>(this, SaveDesign, save);
}

void Korvane::Notes_Click() {
    auto* form = Open<NoteForm>(this, menu, state);
    connect(form, &NoteForm::Changed, this, &Korvane::Changed, Qt::UniqueConnection);
}

void Korvane::Dice_Click() { Open<DiceForm>(this, menu); }

void Korvane::Stech_Click() { OpenModal<TechForm>(this, "TechForm", StandardChart()); }

void Korvane::HTech_Click() { OpenModal<TechForm>(this, "TechForm2", ExpansionChart()); }

void Korvane::About_Click() { OpenModal<AboutForm>(this); }

void Korvane::MenuTechMod_Click() {
    auto* form = OpenModal<TechModForm>(this);
    MakeOneStepOf(form);
    connect(form, &TechModForm::ModifierChanged, this, &Korvane::SetModifier);
}

void Korvane::SetModifier(int colour, int modifier) {
    // In the order of the window's columns.
    constexpr std::array modifiers{&Game::GreenModifier, &Game::BlueModifier, &Game::RedModifier,
                                   &Game::YellowModifier};
    state.Game.*modifiers.at(static_cast<std::size_t>(colour)) =
        static_cast<std::int16_t>(modifier);
    UpdateValues();
    emit Changed();
}

void Korvane::PlayerName_Click(int player) {
    state.View.EditedPlayer = player;
    auto* form = new ColorSelectForm(state, this);
    MakeOneStepOf(form);
    connect(form, &ColorSelectForm::Confirmed, this, &Korvane::NameConfirmed);
    form->Form_Load();
    // What loading changed belongs to the click.
    connect(form, &ColorSelectForm::Changed, this, &Korvane::Changed);
    form->move(pos() + table->Column(player).Name()->pos() + QPoint(0, FromTwips(1000)));
    form->show();
    emit Changed();
}

void Korvane::NameConfirmed() {
    TurnOrder();
    emit Changed();
}

void Korvane::Quit_Click() {
    if (auto* dice = findChild<DiceForm*>()) {
        dice->close();
    }
    close();
    QApplication::quit();
}

void Korvane::closeEvent(QCloseEvent* event) {
    Form_Unload();
    QMainWindow::closeEvent(event);
}

void Korvane::Form_Unload() {
    for (const char* name : ChildWindows) {
        if (auto* window = findChild<QWidget*>(name, Qt::FindDirectChildrenOnly)) {
            window->close();
        }
    }
}

} // namespace ksm
