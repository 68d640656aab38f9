#include "tests/saves/system_fault.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ksm {
namespace {

SystemFault armed;

bool Strikes(std::string_view call) {
    const bool isMeant = armed.Number > 0 && armed.Call.find(call) != std::string_view::npos;
    if (!isMeant || --armed.Number > 0) {
        return false;
    }
    if (armed.Kills) {
        _exit(0);
    }
    errno = EIO;
    return true;
}

} // namespace

void SetFault(const SystemFault& fault) { armed = fault; }

} // namespace ksm

// In place of those of the C library.
extern "C" {

int fsync(int file) {
    return ksm::Strikes("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

ssize_t write(int file, const void* data, size_t size) {
    // A disk that is about to be full takes a part.
    const size_t taken = ksm::armed.Call == "write" ? std::min<size_t>(size, 4096) : size;
    return ksm::Strikes("write") ? -1 : syscall(SYS_write, file, data, taken);
}

int close(int file) {
    const bool isWritten = (fcntl(file, F_GETFL) & O_ACCMODE) == O_WRONLY;
    const bool strikes = isWritten && ksm::Strikes("close");
    const int result = static_cast<int>(syscall(SYS_close, file));
    errno = strikes ? EIO : errno;
    return strikes ? -1 : result;
}

int rename(const char* from, const char* to) noexcept {
    return ksm::Strikes("rename") ? -1 : renameat(AT_FDCWD, from, AT_FDCWD, to);
}

int remove(const char* path) noexcept {
    if (ksm::Strikes("remove")) {
        return -1;
    }
    const int result = unlinkat(AT_FDCWD, path, 0);
    return result != 0 && errno == EISDIR ? unlinkat(AT_FDCWD, path, AT_REMOVEDIR) : result;
}

} // extern "C"
