#include "saves/json_writer.h"

namespace ksm {

void JsonWriter::Text(const char* name, const std::string& utf8) {
    Put(name, QString::fromStdString(utf8));
}

void JsonWriter::Hue(const char* name, Colour colour) {
    const uint number = uint{colour.Red} << 16 | uint{colour.Green} << 8 | colour.Blue;
    Put(name, QString("#%1").arg(number, 6, 16, QChar('0')).toUpper());
}

void JsonWriter::Numbers(const char* name, std::span<const std::uint8_t> values, int, int, int) {
    QJsonArray list;
    for (const std::uint8_t value : values) {
        list.append(value);
    }
    Put(name, list);
}

} // namespace ksm
