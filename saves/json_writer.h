// Puts a JSON object together, member by member.
#pragma once

#include "model/colour.h"
#include "model/point.h"

#include <QJsonArray>
#include <QJsonObject>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ksm {

/// Has the functions of a JsonReader, so that one description of the members serves both; the
/// ranges are the reader's business.
class JsonWriter {
public:
    static constexpr bool Reading = false;

    void Number(const char* name, qint64 value, qint64, qint64) { Put(name, value); }
    void Bool(const char* name, bool value) { Put(name, value); }
    void Text(const char* name, const std::string& utf8);
    void Colour(const char* name, ksm::Colour colour);
    void Point(const char* name, ksm::Point point, int, int);

    template<typename Enumeration>
    void Enum(const char* name, Enumeration value, std::span<const std::string_view> words) {
        Put(name, QLatin1StringView(words[static_cast<std::size_t>(value)]));
    }

    template<typename Value, typename DescribeMembers>
    void Object(const char* name, const Value& value, const DescribeMembers& describe) {
        Put(name, Describe(value, describe));
    }

    void Numbers(const char* name, std::span<const std::uint8_t> values, int, int, int);

    template<typename Value, typename DescribeMembers>
    void List(const char* name, const std::vector<Value>& values, int, int,
              const DescribeMembers& describe) {
        QJsonArray list;
        for (const Value& value : values) {
            list.append(Describe(value, describe));
        }
        Put(name, list);
    }

    const QJsonObject& Result() const { return object; }

private:
    void Put(const char* name, const QJsonValue& value) {
        object.insert(QLatin1StringView(name), value);
    }

    template<typename Value, typename DescribeMembers>
    static QJsonObject Describe(const Value& value, const DescribeMembers& describe) {
        JsonWriter members;
        describe(members, value);
        return members.object;
    }

    QJsonObject object;
};

} // namespace ksm
