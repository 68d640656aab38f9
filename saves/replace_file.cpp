#include "saves/replace_file.h"

#include <QRegularExpression>
#include <QString>
#include <QSysInfo>

#include <system_error>
#include <unistd.h>

namespace ksm {

namespace {

namespace fs = std::filesystem;

constexpr auto LeftoverEnding = ".tmp";
constexpr auto CopyEnding = "-old.tmp";

// Begins the names of unfinished files; a process number follows. The computer's name is in it,
// since others may write into the same folder over a network.
std::string LeftoverBeginning() {
    return ".ksm-" + QSysInfo::machineHostName().left(64).toStdString() + '-';
}

fs::path UnfinishedBeside(const fs::path& path, const char* ending) {
    return path.parent_path() / (LeftoverBeginning() + std::to_string(getpid()) + ending);
}

// A second name for the same file would be cheaper, but not every file system has them, and not
// every folder lets one be taken back.
Outcome<> Copy(const fs::path& path, const fs::path& copy) {
    const fs::path unfinished = UnfinishedBeside(path, CopyEnding);
    std::error_code error;
    fs::copy_file(path, unfinished, fs::copy_options::overwrite_existing, error);
    Outcome<> done = error ? Failure{error.message()} : Sync(unfinished);
    if (done) {
        done = Rename(unfinished, copy);
    }
    if (!done) {
        fs::remove(unfinished, error);
    }
    return done;
}

} // namespace

Outcome<> ReplaceFile(const fs::path& path, std::string_view content, Durability durability,
                      const fs::path& copy) {
    const fs::path unfinished = UnfinishedBeside(path, LeftoverEnding);
    std::error_code ignored;
    fs::remove(unfinished, ignored); // of an earlier process with this number
    Outcome<> done = WriteNewFile(unfinished, content, durability);
    if (done && fs::exists(path, ignored)) {
        fs::permissions(unfinished, fs::status(path, ignored).permissions(), ignored);
        if (!copy.empty()) {
            done = Copy(path, copy);
        }
    }
    if (done) {
        done = Rename(unfinished, path);
    }
    if (!done) {
        fs::remove(unfinished, ignored);
    }
    return done && durability == Durability::Disk ? Sync(path.parent_path()) : done;
}

void RemoveLeftovers(const fs::path& folder) {
    const QString beginning = QString::fromStdString(LeftoverBeginning());
    const QRegularExpression leftover(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(beginning) + "([0-9]+)(-old)?\\.tmp"));
    std::error_code ignored;
    for (fs::directory_iterator file(folder, ignored), end; file != end; file.increment(ignored)) {
        const QString name = QString::fromStdString(file->path().filename());
        const QRegularExpressionMatch match = leftover.match(name);
        if (match.hasMatch() && !IsRunning(match.captured(1).toUInt())) {
            fs::remove(*file, ignored);
        }
    }
}

} // namespace ksm
