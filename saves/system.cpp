#include "saves/system.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace ksm {

QString SyncFile(const QFile& file) {
    return fsync(file.handle()) == 0 ? QString() : qt_error_string(errno);
}

QString SyncFolder(const QString& folder) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): as it is declared.
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0) {
        return qt_error_string(errno);
    }
    // Some file systems have nothing to do for a folder, and say so.
    const bool done = fsync(handle) == 0 || errno == EINVAL;
    QString problem = done ? QString() : qt_error_string(errno);
    close(handle);
    return problem;
}

bool IsRunning(qint64 process) {
    return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

} // namespace ksm
