#include "planets/text_encoding.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <iconv.h>
#include <memory>
#include <type_traits>

namespace ksm {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

struct CloseConversion {
    void operator()(iconv_t conversion) const { iconv_close(conversion); }
};
using Conversion = std::unique_ptr<std::remove_pointer_t<iconv_t>, CloseConversion>;

// Converts as many bytes as have a meaning in the encoding, and takes them off `bytes`.
std::string Convert(iconv_t conversion, std::string_view& bytes) {
    std::string text;
    std::array<char, 4096> buffer{};
    while (!bytes.empty()) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): iconv only reads there.
        char* in = const_cast<char*>(bytes.data());
        std::size_t inLeft = bytes.size();
        char* out = buffer.data();
        std::size_t outLeft = buffer.size();
        const bool done = iconv(conversion, &in, &inLeft, &out, &outLeft) != std::size_t(-1);
        const bool full = !done && errno == E2BIG;
        text.append(buffer.data(), out);
        bytes.remove_prefix(bytes.size() - inLeft);
        if (!full) {
            break;
        }
    }
    return text;
}

// UTF-16 has no place for what lies beyond Unicode, which iconv would let pass as UTF-8.
bool IsUtf8(std::string_view bytes) {
    Convert(Conversion(iconv_open("UTF-16LE", "UTF-8")).get(), bytes);
    return bytes.empty();
}

std::string FromWindows1252(std::string_view bytes) {
    const Conversion conversion(iconv_open("UTF-8", "WINDOWS-1252"));
    std::string text;
    while (!bytes.empty()) {
        text += Convert(conversion.get(), bytes);
        if (!bytes.empty()) {
            // One of the five bytes without a character: it stands for itself.
            text += '\xC2';
            text += bytes.front();
            bytes.remove_prefix(1);
        }
    }
    return text;
}

} // namespace

std::string DecodeText(std::string_view bytes) {
    if (bytes.starts_with(ByteOrderMark)) {
        bytes.remove_prefix(ByteOrderMark.size());
    }
    return IsUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

} // namespace ksm
