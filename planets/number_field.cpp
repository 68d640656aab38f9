#include "planets/number_field.h"

#include <cmath>
#include <cstddef>
#include <locale>
#include <sstream>

namespace ksm {

namespace {

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The value of `c` as a digit, 99 when it is none.
int DigitValue(char c) {
    const char lower = Lower(c);
    if (lower >= '0' && lower <= '9')
        return lower - '0';
    if (lower >= 'a' && lower <= 'f')
        return lower - 'a' + 10;
    return 99;
}

// Reads a text from its beginning, piece by piece.
class Scanner {
public:
    explicit Scanner(std::string_view whole) : text(whole) {}

    // Steps over one of `choices` (lower case) and tells whether there was one.
    bool Take(std::string_view choices) {
        if (At() == '\0' || choices.find(Lower(At())) == std::string_view::npos)
            return false;
        ++position;
        return true;
    }
    std::string_view TakeDigits(int base) {
        const std::size_t start = position;
        while (DigitValue(At()) < base)
            ++position;
        return text.substr(start, position - start);
    }
    std::size_t Position() const { return position; }
    void BackTo(std::size_t earlier) { position = earlier; }

private:
    char At() const { return position < text.size() ? text[position] : '\0'; }

    std::string_view text;
    std::size_t position = 0;
};

double ScanPrefixed(Scanner& scanner, int base) {
    double value = 0;
    for (const char digit : scanner.TakeDigits(base))
        value = value * base + DigitValue(digit);
    return value;
}

// Digits, point, digits, and an exponent only where it has digits.
double ScanDecimal(Scanner& scanner) {
    std::string number = "0";
    number += scanner.TakeDigits(10);
    if (scanner.Take(".")) {
        number += '.';
        number += scanner.TakeDigits(10);
        number += '0';
    }
    const std::size_t mantissaEnd = scanner.Position();
    if (number != "0" && scanner.Take("ed")) {
        const std::size_t signStart = scanner.Position();
        const bool negative = scanner.Take("-");
        if (scanner.Position() == signStart)
            scanner.Take("+");
        const std::string_view exponent = scanner.TakeDigits(10);
        if (exponent.empty()) {
            scanner.BackTo(mantissaEnd);
        } else {
            number += negative ? "e-" : "e+";
            number += exponent;
        }
    }
    // The same in every locale, and the largest double for anything larger.
    std::istringstream stream(number);
    stream.imbue(std::locale::classic());
    double value = 0;
    stream >> value;
    return value;
}

} // namespace

FieldNumber ReadNumberField(std::string_view field) {
    std::string text;
    for (const char c : field) {
        if (c != ' ' && c != '\t' && c != '\n')
            text += c;
    }
    Scanner scanner(text);
    const bool negative = scanner.Take("-");
    if (!negative)
        scanner.Take("+");
    double value = 0;
    if (scanner.Take("&")) {
        if (scanner.Take("h")) {
            value = ScanPrefixed(scanner, 16);
        } else if (scanner.Take("o")) {
            value = ScanPrefixed(scanner, 8);
        }
    } else {
        value = ScanDecimal(scanner);
    }
    return {std::nearbyint(negative ? -value : value), text.substr(0, scanner.Position())};
}

} // namespace ksm
