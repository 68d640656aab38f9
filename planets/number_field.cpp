#include "planets/number_field.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ksm {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

struct Reading {
    double Value = 0;
    std::size_t Length = 0; ///< characters that belong to the number
};

// `text` is in lower case, with E for every exponent.
Reading ReadDecimal(std::string_view text) {
    // A second sign, and words such as "inf", begin no number.
    if (text.empty() ||
        std::string_view(".0123456789").find(text.front()) == std::string_view::npos) {
        return {};
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value);
    const auto length = static_cast<std::size_t>(end - text.begin());
    if (error == std::errc::result_out_of_range) {
        // So near to 0 only by a negative exponent.
        value = text.substr(0, length).find("e-") == std::string_view::npos ? Infinite : 0;
    }
    return {value, length};
}

// Digits behind a prefix of two characters.
Reading ReadPrefixed(std::string_view text, int base) {
    const char* const begin = text.begin() + 2;
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(begin, text.end(), value, base);
    const bool large = error == std::errc::result_out_of_range;
    return {large ? Infinite : static_cast<double>(value),
            static_cast<std::size_t>(end - text.begin())};
}

Reading ReadUnsigned(std::string_view field) {
    std::string text = LowerCase(field);
    if (text.starts_with("&h")) {
        return ReadPrefixed(text, 16);
    }
    if (text.starts_with("&o")) {
        return ReadPrefixed(text, 8);
    }
    std::ranges::replace(text, 'd', 'e');
    return ReadDecimal(text);
}

} // namespace

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

FieldNumber ReadNumberField(std::string_view field) {
    std::string text(field);
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    const bool negative = text.starts_with('-');
    const std::size_t sign = negative || text.starts_with('+') ? 1 : 0;
    const auto [value, length] = ReadUnsigned(text.substr(sign));
    return {std::nearbyint(negative ? -value : value), text.substr(0, sign + length)};
}

} // namespace ksm
