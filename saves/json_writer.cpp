#include "saves/json_writer.h"

namespace ksm {

void JsonWriter::Text(const char* name, const std::string& utf8) {
    Put(name, QString::fromStdString(utf8));
}

void JsonWriter::Hue(const char* name, Colour colour) {
    Put(name, QString::asprintf("#%02X%02X%02X", colour.Red, colour.Green, colour.Blue));
}

void JsonWriter::Numbers(const char* name, std::span<const std::uint8_t> values, int, int, int) {
    QJsonArray list;
    for (const std::uint8_t value : values) {
        list.append(value);
    }
    Put(name, list);
}

} // namespace ksm
