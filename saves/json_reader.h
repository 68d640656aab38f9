// Takes a JSON object apart and checks what it holds.
#pragma once

#include "model/colour.h"
#include "model/point.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ksm {

/// Hands out the members of an object, each once, into values that the caller has. Whatever is
/// wrong first, with any object that shares `problem`, is described there, and the value stays as
/// it was: the caller reads on and looks at the problem once, at the end.
class JsonReader {
public:
    static constexpr bool Reading = true;

    /// `place` says where in the file the object stands, as in "Players[3]"; it may be empty.
    JsonReader(QJsonObject object, QString place, QString& problem)
        : rest(std::move(object)), ownPlace(std::move(place)), firstProblem(problem) {}

    template<typename Whole>
    void Number(const char* name, Whole& value, qint64 least, qint64 most) {
        ReadNumber(Extract(name), Where(name), value, least, most);
    }
    void Bool(const char* name, bool& value);
    void Text(const char* name, std::string& utf8);
    void Colour(const char* name, ksm::Colour& colour);
    /// A list of two numbers, 0 to `right` and 0 to `bottom`.
    void Point(const char* name, ksm::Point& point, int right, int bottom);

    /// One of `words`, which stand in the order of the enumeration.
    template<typename Enumeration>
    void Enum(const char* name, Enumeration& value, std::span<const std::string_view> words) {
        value = static_cast<Enumeration>(FindWord(name, static_cast<std::size_t>(value), words));
    }

    template<typename Value, typename DescribeMembers>
    void Object(const char* name, Value& value, const DescribeMembers& describe) {
        Read(Extract(name), Where(name), value, describe);
    }

    /// A list of at most `longest` numbers.
    void Numbers(const char* name, std::vector<std::uint8_t>& values, int longest, int least,
                 int most);

    /// A list of `fewest` to `longest` objects.
    template<typename Value, typename DescribeMembers>
    void List(const char* name, std::vector<Value>& values, int fewest, int longest,
              const DescribeMembers& describe) {
        values.clear();
        for (const QJsonValue element : ExtractList(name, fewest, longest)) {
            const QString place = Where(name, static_cast<qsizetype>(values.size()));
            Read(element, place, values.emplace_back(), describe);
        }
    }

    /// To be called after the last member was taken: refuses members that nobody knows.
    void Finish();

private:
    template<typename Whole>
    void ReadNumber(const QJsonValue& number, const QString& place, Whole& value, qint64 least,
                    qint64 most) {
        const qint64 found = number.toInteger(least - 1);
        if (found < least || found > most) {
            Refuse(place, QString("is not a whole number from %1 to %2").arg(least).arg(most));
            return;
        }
        value = static_cast<Whole>(found);
    }

    template<typename Value, typename DescribeMembers>
    void Read(const QJsonValue& object, const QString& place, Value& value,
              const DescribeMembers& describe) {
        if (!object.isObject()) {
            Refuse(place, "is not an object");
        }
        JsonReader members(object.toObject(), place, firstProblem);
        describe(members, value);
        members.Finish();
    }

    /// Removes the member from those that are left, and returns it.
    QJsonValue Extract(const char* name);
    QJsonArray ExtractList(const char* name, int fewest, int longest);
    std::size_t FindWord(const char* name, std::size_t otherwise,
                         std::span<const std::string_view> words);
    QString Where(const char* name) const;
    QString Where(const char* list, qsizetype index) const;
    /// Notes that `where` is wrong, unless something is already.
    void Refuse(const QString& where, const QString& what);

    QJsonObject rest;
    QString ownPlace;
    QString& firstProblem;
};

} // namespace ksm
