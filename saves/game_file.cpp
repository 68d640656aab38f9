#include "saves/game_file.h"

#include "saves/replace_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ksm {

namespace {

// With "~" behind it a name has at most 255 bytes, the most that file systems take.
constexpr qsizetype LongestName = 254;

// A name may begin with ":", which Qt takes for something inside the program.
QString OnDisk(const QString& name) {
    return name.startsWith('/') ? name : "./" + name;
}

QString Failure(const QString& path, const QString& reason) {
    const QFileInfo file(path);
    return QString(R"("%1" in the folder "%2": %3)")
        .arg(file.fileName(), QDir::toNativeSeparators(file.absolutePath()), reason);
}

// A folder, or a pipe or device, which would be replaced by a game or read for ever.
QString CheckFile(const QString& path) {
    const QFileInfo info(path);
    return info.exists() && !info.isFile() ? "This is not a file." : QString();
}

QString CheckName(const QString& path) {
    const qsizetype bytes = QFile::encodeName(QFileInfo(path).fileName()).size();
    return bytes <= LongestName ? QString()
                                : QString("The name has %1 bytes, but %2 are the most possible.")
                                      .arg(bytes)
                                      .arg(LongestName);
}

// Whether saving again changes nothing, so that an older game is kept rather than this one.
bool Holds(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
}

QString Save(const QString& path, const GameState& state) {
    const QByteArray content = WriteGame(state);
    if (content.size() > LargestGameFile) {
        return "The game is larger than 1 MiB, the most that a saved game can hold. "
               "Shorten the notes.";
    }
    for (const auto& check : {CheckFile, CheckName}) {
        QString problem = check(path);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    const QString copy = Holds(path, content) ? QString() : path + '~';
    return ReplaceFile(path, content, Durability::Disk, copy);
}

} // namespace

QString SaveGameFile(const QString& name, const GameState& state) {
    // Through a link the game goes to where the link leads.
    const QFileInfo link(OnDisk(name));
    const QString path = link.exists() ? link.canonicalFilePath() : link.filePath();
    const QString problem = Save(path, state);
    if (problem.isEmpty()) {
        RemoveLeftovers(QFileInfo(path).path());
        return {};
    }
    return Failure(path, problem);
}

ReadGameResult LoadGameFile(const QString& name) {
    const QString path = OnDisk(name);
    const QString unusable = CheckFile(path);
    if (!unusable.isEmpty()) {
        return {{}, Failure(path, unusable)};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, Failure(path, file.errorString())};
    }
    const QByteArray bytes = file.read(LargestGameFile + 1);
    if (file.error() != QFile::NoError) {
        return {{}, Failure(path, file.errorString())};
    }
    ReadGameResult result = ReadGame(bytes);
    if (!result.Game) {
        result.Problem = Failure(path, result.Problem);
    }
    return result;
}

} // namespace ksm
