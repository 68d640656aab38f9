#include "saves/json_writer.h"

namespace ksm {

void JsonWriter::Text(const char* name, const std::string& utf8) {
    Put(name, QString::fromStdString(utf8));
}

void JsonWriter::Colour(const char* name, ksm::Colour colour) {
    const int number = colour.Red << 16 | colour.Green << 8 | colour.Blue;
    Put(name, QString("#%1").arg(number, 6, 16, QChar('0')).toUpper());
}

void JsonWriter::Point(const char* name, ksm::Point point, int, int) {
    Put(name, QJsonArray{point.X, point.Y});
}

void JsonWriter::Numbers(const char* name, std::span<const std::uint8_t> values, int, int, int) {
    QJsonArray list;
    for (const std::uint8_t value : values) {
        list.append(value);
    }
    Put(name, list);
}

} // namespace ksm
