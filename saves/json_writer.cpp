#include "saves/json_writer.h"

namespace ksm {

void JsonWriter::Text(const char* name, const std::string& utf8) {
    Put(name, QString::fromStdString(utf8));
}

void JsonWriter::Colour(const char* name, ksm::Colour colour) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const std::uint8_t part : {colour.Red, colour.Green, colour.Blue}) {
        text += Digits[part / 16U];
        text += Digits[part % 16U];
    }
    Put(name, QLatin1StringView(text));
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
