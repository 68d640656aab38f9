// Starts the program.

#include "app/display_choice.h"
#include "app/fixed_size_guard.h"
#include "app/korvane.h"
#include "app/single_instance.h"
#include "controls/accessible_names.h"
#include "controls/input_guard.h"
#include "controls/look.h"
#include "controls/message_box.h"
#include "planets/planet_list_file.h"
#include "saves/kept_game.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace {

/// With all links resolved; its name can hold any bytes.
std::filesystem::path ProgramFolder() {
    // Qt's answer has lost the bytes that are no UTF-8.
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path(
                       QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString())
                 : program.parent_path();
}

/// Drawn here, since Qt's own way takes a plugin, which is not installed everywhere.
QIcon ProgramIcon() {
    QSvgRenderer drawing(QString(":/ksm.svg"));
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        QPixmap drawn(size, size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(drawn);
    }
    return icon;
}

/// Reads the planet list beside the program; says what is wrong with it and returns false if
/// anything is.
bool LoadPlanetList(ksm::GameState& state) {
    const auto list = ksm::ReadPlanetListFile(ProgramFolder() / ksm::PlanetListName);
    if (!list) {
        ksm::ShowMessage(QMessageBox::Critical, ksm::ProgramTitle,
                         QString::fromStdString(list.Reason()));
        return false;
    }
    ksm::SetPlanets(state.Game, *list);
    return true;
}

} // namespace

int main(int argc, char* argv[]) {
    ksm::ChooseDisplay();
    // The look is our own, and the menu bar stands in the window: nothing to ask the desktop for.
    QGuiApplication::setDesktopSettingsAware(false);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    ksm::ExplainMissingDisplay();
    QApplication application(argc, argv);
    ksm::ForgetMissingDisplay();
    QApplication::setApplicationName("ksm");
    QGuiApplication::setDesktopFileName("ksm");
    ksm::ApplyLook();
    ksm::InstallAccessibleNames();
    ksm::InputGuard guard;
    application.installEventFilter(&guard);
    ksm::FixedSizeGuard sizeGuard;
    if (ksm::IsWayland()) {
        application.installEventFilter(&sizeGuard);
    }
    QApplication::setWindowIcon(ProgramIcon());

    const ksm::SingleInstance instance;
    if (instance.OtherIsRunning()) {
        ksm::ShowMessage(QMessageBox::Information, ksm::ProgramTitle, "KSM is already running!");
        return 1;
    }
    ksm::GameState state;
    if (!LoadPlanetList(state)) {
        return 1;
    }
    ksm::KeptGame kept(state);
    ksm::Korvane window(state, &kept);
    window.show();
    return QApplication::exec();
}
