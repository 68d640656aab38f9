#include "planets/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ksm {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Characters of the bytes 0x80..0x9F; the five bytes without a character stand for themselves.
constexpr std::array<char32_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Which bytes a character can begin with, and what follows. The second byte is narrowed after some
// of them: no long forms, no surrogates, nothing above U+10FFFF.
struct Lead {
    std::uint8_t First;
    std::uint8_t Last;
    std::size_t Length; ///< bytes of the character
    std::uint8_t SecondFirst = 0x80;
    std::uint8_t SecondLast = 0xBF;
};

constexpr std::array<Lead, 9> Leads{{{0x00, 0x7F, 1},
                                     {0xC2, 0xDF, 2},
                                     {0xE0, 0xE0, 3, 0xA0, 0xBF},
                                     {0xE1, 0xEC, 3},
                                     {0xED, 0xED, 3, 0x80, 0x9F},
                                     {0xEE, 0xEF, 3},
                                     {0xF0, 0xF0, 4, 0x90, 0xBF},
                                     {0xF1, 0xF3, 4},
                                     {0xF4, 0xF4, 4, 0x80, 0x8F}}};

std::uint8_t ByteAt(std::string_view bytes, std::size_t i) {
    return static_cast<std::uint8_t>(bytes[i]);
}

// Length of the character at the beginning of `bytes`; 0 when there is none.
std::size_t CharacterLength(std::string_view bytes) {
    const std::uint8_t first = ByteAt(bytes, 0);
    const auto lead = std::ranges::find_if(
        Leads, [&](const Lead& l) { return l.First <= first && first <= l.Last; });
    if (lead == Leads.end() || lead->Length > bytes.size())
        return 0;
    for (std::size_t k = 1; k < lead->Length; ++k) {
        const std::uint8_t byte = ByteAt(bytes, k);
        const bool second = k == 1;
        if (byte < (second ? lead->SecondFirst : 0x80) || byte > (second ? lead->SecondLast : 0xBF))
            return 0;
    }
    return lead->Length;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = CharacterLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

// All characters of Windows-1252 lie below U+10000.
void AppendUtf8(std::string& text, char32_t character) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        append(0x80 | (character & 0x3F));
    } else {
        append(0xE0 | (character >> 12));
        append(0x80 | ((character >> 6) & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

} // namespace

std::string DecodeText(std::string_view bytes) {
    if (bytes.starts_with(ByteOrderMark))
        bytes.remove_prefix(ByteOrderMark.size());
    if (IsUtf8(bytes))
        return std::string(bytes);
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        AppendUtf8(text, special ? Windows1252[byte - 0x80U] : char32_t{byte});
    }
    return text;
}

} // namespace ksm
