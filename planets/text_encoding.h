// What the bytes of a text file mean.
#pragma once

#include <string>
#include <string_view>

namespace ksm {

/// The text as UTF-8: taken as it is when all of it is valid UTF-8, else read as Windows-1252.
/// A UTF-8 byte order mark at the start is dropped.
std::string DecodeText(std::string_view bytes);

} // namespace ksm
