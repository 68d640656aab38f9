#include "saves/game_file.h"

#include <QFileInfo>
#include <QSaveFile>

namespace ksm {

namespace {

constexpr auto NoFile = "This is not a file.";

// A folder, or a pipe or device, which would be replaced by a game or read for ever.
bool IsNoFile(const QString& path) {
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

} // namespace

QString SaveGameFile(const QString& path, const GameState& state) {
    const QByteArray bytes = WriteGame(state);
    if (bytes.size() > LargestGameFile) {
        return "The game is larger than 1 MiB, the most that a saved game can hold. "
               "Shorten the notes.";
    }
    if (IsNoFile(path)) {
        return NoFile;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    // On a full disk only the count and flushing tell; a commit alone would report success and
    // leave a file that is cut off.
    if (file.write(bytes) != bytes.size() || !file.flush() || file.error() != QFile::NoError) {
        QString reason =
            file.error() == QFile::NoError ? "No space left on device" : file.errorString();
        file.cancelWriting();
        return reason;
    }
    return file.commit() ? QString() : file.errorString();
}

ReadGameResult LoadGameFile(const QString& path) {
    if (IsNoFile(path)) {
        return {{}, NoFile};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, file.errorString()};
    }
    const QByteArray bytes = file.read(LargestGameFile + 1);
    if (file.error() != QFile::NoError) {
        return {{}, file.errorString()};
    }
    return ReadGame(bytes);
}

} // namespace ksm
