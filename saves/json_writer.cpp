#include "saves/json_writer.h"

namespace ksm {

void JsonWriter::Text(const char* name, const std::string& utf8) {
    Put(name, QString::fromStdString(utf8));
}

void JsonWriter::Hue(const char* name, Colour colour) {
    const std::array bytes{static_cast<char>(colour.Red), static_cast<char>(colour.Green),
                           static_cast<char>(colour.Blue)};
    const QByteArray digits = QByteArray::fromRawData(bytes.data(), bytes.size()).toHex().toUpper();
    Put(name, QString(u'#' + QLatin1StringView(digits)));
}

void JsonWriter::Place(const char* name, Point place, int, int) {
    Put(name, QJsonArray{place.X, place.Y});
}

void JsonWriter::Numbers(const char* name, std::span<const std::uint8_t> values, int, int, int) {
    QJsonArray list;
    for (const std::uint8_t value : values) {
        list.append(value);
    }
    Put(name, list);
}

} // namespace ksm
