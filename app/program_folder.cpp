#include "app/program_folder.h"

#include <QCoreApplication>
#include <QFile>

namespace ksm {

std::filesystem::path ProgramFolder() {
    // Qt's answer has lost the bytes that are no UTF-8.
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path(
                       QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString())
                 : program.parent_path();
}

} // namespace ksm
