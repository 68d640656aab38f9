#include "saves/system.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ksm {

namespace {

Failure LastFailure() { return {std::generic_category().message(errno)}; }

int Open(const std::filesystem::path& path, int flags) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): as it is declared.
    return open(path.c_str(), flags | O_CLOEXEC, DEFFILEMODE);
}

// A full disk takes a part, and refuses the next.
Outcome<> Write(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = write(file, content.data(), content.size());
        if (written < 0) {
            return LastFailure();
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

// Some file systems have nothing to do for a folder, and say so.
Outcome<> Sync(int file) { return fsync(file) == 0 || errno == EINVAL ? Outcome() : LastFailure(); }

} // namespace

Outcome<> WriteNewFile(const std::filesystem::path& path, std::string_view content,
                       Durability durability) {
    const int file = Open(path, O_WRONLY | O_CREAT | O_EXCL);
    if (file < 0) {
        return LastFailure();
    }
    Outcome<> done = Write(file, content);
    if (done && durability == Durability::Disk) {
        done = Sync(file);
    } else if (done) {
        // Otherwise a file renamed just before a power cut could come back empty.
        sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
    }
    const bool closed = close(file) == 0;
    return done && !closed ? LastFailure() : done;
}

Outcome<> Sync(const std::filesystem::path& path) {
    const int file = Open(path, O_RDONLY);
    if (file < 0) {
        // Who may write into a folder need not be allowed to read it, which syncing asks for.
        return errno == EACCES ? Outcome() : LastFailure();
    }
    Outcome<> done = Sync(file);
    close(file);
    return done;
}

Outcome<> Rename(const std::filesystem::path& from, const std::filesystem::path& to) {
    return rename(from.c_str(), to.c_str()) == 0 ? Outcome() : LastFailure();
}

bool IsRunning(unsigned process) {
    return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

} // namespace ksm
