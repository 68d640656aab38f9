#include "saves/replace_file.h"

#include "saves/system.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

#include <filesystem>
#include <system_error>

namespace ksm {

namespace {

constexpr auto LeftoverEnding = ".tmp";

// Begins the names of unfinished files; a process number follows. The computer's name is in it,
// since others may write into the same folder over a network.
QString LeftoverBeginning() {
    return ".ksm-" + QSysInfo::machineHostName().left(64) + '-';
}

// `use` tells the files from one another that this process needs in the folder at the same time.
QString UnfinishedIn(const QString& folder, const char* use) {
    return folder + '/' + LeftoverBeginning() +
           QString::number(QCoreApplication::applicationPid()) + use + LeftoverEnding;
}

std::filesystem::path OnDisk(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString Rename(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(OnDisk(from), OnDisk(to), error);
    if (error) {
        QFile::remove(from);
        return QString::fromStdString(error.message());
    }
    return {};
}

// On a full disk only the count and flushing tell.
QString Write(QFile& file, const QByteArray& content, Durability durability) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return file.errorString();
    }
    if (file.write(content) != content.size() || !file.flush() || file.error() != QFile::NoError) {
        return file.error() == QFile::NoError ? "No space left on device" : file.errorString();
    }
    return durability == Durability::Disk ? SyncFile(file) : QString();
}

// Gives the file a second name.
QString Keep(const QString& path, const QString& copy) {
    const QString unfinished = UnfinishedIn(QFileInfo(path).path(), "-old");
    QFile::remove(unfinished);
    std::error_code error;
    std::filesystem::create_hard_link(OnDisk(path), OnDisk(unfinished), error);
    QFile old(path);
    // Not every file system can give a file two names.
    if (error && !old.copy(unfinished)) {
        QFile::remove(unfinished);
        return old.errorString();
    }
    QString refused = Rename(unfinished, copy);
    // Renaming does nothing where both names are of one file already.
    QFile::remove(unfinished);
    return refused;
}

} // namespace

QString ReplaceFile(const QString& path, const QByteArray& content, Durability durability,
                    const QString& copy) {
    const QFileInfo old(path);
    QFile unfinished(UnfinishedIn(old.path(), ""));
    unfinished.remove(); // of an earlier process with this number
    QString problem = Write(unfinished, content, durability);
    if (problem.isEmpty() && old.exists()) {
        unfinished.setPermissions(old.permissions());
        if (!copy.isEmpty()) {
            problem = Keep(path, copy);
        }
    }
    if (!problem.isEmpty()) {
        unfinished.remove();
        return problem;
    }
    unfinished.close();
    problem = Rename(unfinished.fileName(), path);
    return problem.isEmpty() && durability == Durability::Disk ? SyncFolder(old.path()) : problem;
}

void RemoveLeftovers(const QString& folder) {
    const QString beginning = LeftoverBeginning();
    const QString pattern = beginning + '*' + LeftoverEnding;
    for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files | QDir::Hidden)) {
        const QString process = name.mid(beginning.size()).section('.', 0, 0).section('-', 0, 0);
        bool isNumber = false;
        const qint64 number = process.toLongLong(&isNumber);
        if (isNumber && !IsRunning(number)) {
            QFile::remove(folder + '/' + name);
        }
    }
}

} // namespace ksm
