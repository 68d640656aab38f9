#include "saves/json_reader.h"

#include <algorithm>

namespace ksm {

void JsonReader::Bool(const char* name, bool& value) {
    const QJsonValue found = Extract(name);
    if (!found.isBool()) {
        Refuse(Where(name), "is neither true nor false");
    }
    value = found.toBool(value);
}

void JsonReader::Text(const char* name, std::string& utf8) {
    const QJsonValue found = Extract(name);
    QString text = found.toString();
    if (!found.isString() || !text.isValidUtf16()) {
        Refuse(Where(name), "is not a text");
        return;
    }
    // At the beginning of a text Qt takes a byte order mark for none of its characters.
    while (text.startsWith(QChar::ByteOrderMark)) {
        text.remove(0, 1);
    }
    utf8 = text.toStdString();
}

void JsonReader::Colour(const char* name, ksm::Colour& colour) {
    const QString text = Extract(name).toString();
    bool isNumber = false;
    const uint number = QStringView(text).mid(1).toUInt(&isNumber, 16);
    if (text.size() != 7 || !text.startsWith('#') || !isNumber) {
        Refuse(Where(name), "is not a colour such as #FF8000");
        return;
    }
    const auto part = [&](int bits) { return static_cast<std::uint8_t>(number >> bits & 0xFF); };
    colour = {part(16), part(8), part(0)};
}

void JsonReader::Point(const char* name, ksm::Point& point, int right, int bottom) {
    const QJsonArray pair = ExtractList(name, 2, 2);
    ReadNumber(pair.at(0), Where(name, 0), point.X, 0, right);
    ReadNumber(pair.at(1), Where(name, 1), point.Y, 0, bottom);
}

void JsonReader::Numbers(const char* name, std::vector<std::uint8_t>& values, int longest,
                         int least, int most) {
    values.clear();
    for (const QJsonValue element : ExtractList(name, 0, longest)) {
        const QString place = Where(name, static_cast<qsizetype>(values.size()));
        ReadNumber(element, place, values.emplace_back(), least, most);
    }
}

void JsonReader::Finish() {
    if (!rest.isEmpty()) {
        Refuse(Where(qPrintable(rest.begin().key().left(40))), "is unknown");
    }
}

QJsonValue JsonReader::Extract(const char* name) {
    QJsonValue value = rest.take(QLatin1StringView(name));
    if (value.isUndefined()) {
        Refuse(Where(name), "is missing");
    }
    return value;
}

QJsonArray JsonReader::ExtractList(const char* name, int fewest, int longest) {
    const QJsonValue value = Extract(name);
    QJsonArray list = value.toArray();
    if (value.isArray() && list.size() >= fewest && list.size() <= longest) {
        return list;
    }
    Refuse(Where(name), QString("is not a list of %1 to %2 elements").arg(fewest).arg(longest));
    return {};
}

std::size_t JsonReader::FindWord(const char* name, std::size_t otherwise,
                                 std::span<const std::string_view> words) {
    std::string word;
    Text(name, word);
    const auto found = std::ranges::find(words, word);
    if (found != words.end()) {
        return static_cast<std::size_t>(found - words.begin());
    }
    Refuse(Where(name), "is none of the words allowed there");
    return otherwise;
}

QString JsonReader::Where(const char* name) const {
    return ownPlace.isEmpty() ? QString(name) : ownPlace + '.' + name;
}

QString JsonReader::Where(const char* list, qsizetype index) const {
    return Where(list) + QString("[%1]").arg(index);
}

void JsonReader::Refuse(const QString& where, const QString& what) {
    if (firstProblem.isEmpty()) {
        firstProblem = where + ' ' + what + '.';
    }
}

} // namespace ksm
