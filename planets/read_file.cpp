#include "planets/read_file.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace ksm {

Outcome<> CheckFile(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    const bool isOther =
        std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
    return isOther ? Failure{"This is not a file."} : Outcome();
}

Outcome<std::string> ReadFile(const std::filesystem::path& path) {
    if (const Outcome<> checked = CheckFile(path); !checked) {
        return Failure{checked.Reason()};
    }
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) {
        return Failure{error.message()};
    }
    if (size > LargestFile) {
        return Failure{"The file is larger than 1 MiB."};
    }
    std::string bytes(size, '\0');
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file.read(bytes.data(), static_cast<std::streamsize>(size))) {
        return Failure{std::generic_category().message(errno != 0 ? errno : EIO)};
    }
    return bytes;
}

} // namespace ksm
