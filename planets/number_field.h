// Numbers as the planet list writes them.
#pragma once

#include <string>
#include <string_view>

namespace ksm {

struct FieldNumber {
    double Value = 0; ///< rounded to a whole number, halves to the even neighbour; 0 without digits
    std::string Text; ///< the characters that were read as the number
};

/// The text with small letters for A to Z.
std::string LowerCase(std::string_view text);

/// Reads the number at the beginning of `field`. Blanks, tabs and line feeds count nowhere. A
/// number is an optional sign, then decimal digits with at most one point and an optional exponent
/// (E or D), or &H and hexadecimal digits, or &O and octal digits; whatever follows it is ignored.
/// A number too large for a double is infinite.
FieldNumber ReadNumberField(std::string_view field);

} // namespace ksm
