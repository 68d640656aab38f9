#include "dialogs/json_members.h"

#include <algorithm>

namespace ksm {

namespace {

// Outside texts a colon stands behind the name of each member and nowhere else.
qsizetype CountColons(const QByteArray& text) {
    qsizetype colons = 0;
    bool inText = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (inText && c == '\\') {
            ++i;
        } else if (c == '"') {
            inText = !inText;
        } else if (c == ':' && !inText) {
            ++colons;
        }
    }
    return colons;
}

qsizetype CountMembers(const QJsonValue& value) {
    qsizetype members = 0;
    for (const QJsonValue element : value.toArray())
        members += CountMembers(element);
    const QJsonObject object = value.toObject();
    for (const QJsonValue member : object)
        members += 1 + CountMembers(member);
    return members;
}

} // namespace

JsonMembers::JsonMembers(const QJsonValue& object, const QString& place, QString& problem)
    : rest(object.toObject()), ownPlace(place), firstProblem(problem) {
    if (!object.isObject())
        Refuse(place, "is not an object");
}

bool JsonMembers::Truth(const char* name) {
    const QJsonValue value = Take(name);
    if (!value.isBool())
        Refuse(Place(name), "is neither true nor false");
    return value.toBool();
}

std::string JsonMembers::Text(const char* name) {
    const QJsonValue value = Take(name);
    if (!value.isString())
        Refuse(Place(name), "is not a text");
    return value.toString().toStdString();
}

QJsonArray JsonMembers::List(const char* name, int least, int most) {
    const QJsonValue value = Take(name);
    QJsonArray list = value.toArray();
    if (value.isArray() && list.size() >= least && list.size() <= most)
        return list;
    Refuse(Place(name), QString("is not a list of %1 to %2 elements").arg(least).arg(most));
    return {};
}

JsonMembers JsonMembers::Object(const char* name) {
    return {Take(name), Place(name), firstProblem};
}

int JsonMembers::CheckNumber(const QJsonValue& value, const QString& where, int least, int most) {
    const qint64 number = value.toInteger(qint64{least} - 1);
    if (number >= least && number <= most)
        return static_cast<int>(number);
    Refuse(where, QString("is not a whole number from %1 to %2").arg(least).arg(most));
    return least;
}

QString JsonMembers::Place(const char* name) const {
    return ownPlace.isEmpty() ? QString(name) : ownPlace + '.' + name;
}

QString JsonMembers::Place(const char* list, qsizetype index) const {
    return Place(list) + QString("[%1]").arg(index);
}

void JsonMembers::Refuse(const QString& where, const QString& what) {
    if (firstProblem.isEmpty())
        firstProblem = where + ' ' + what + '.';
}

void JsonMembers::Finish() {
    if (!rest.isEmpty())
        Refuse(Place(qPrintable(rest.begin().key().left(40))), "is unknown");
}

QJsonValue JsonMembers::Take(const char* name) {
    QJsonValue value = rest.take(QLatin1StringView(name));
    if (value.isUndefined())
        Refuse(Place(name), "is missing");
    return value;
}

std::size_t JsonMembers::WordIndex(const char* name, std::span<const std::string_view> words) {
    const std::string word = Text(name);
    const auto found = std::ranges::find(words, word);
    if (found != words.end())
        return static_cast<std::size_t>(found - words.begin());
    Refuse(Place(name), "is none of the words allowed there");
    return 0;
}

bool HasRepeatedMembers(const QByteArray& text, const QJsonObject& root) {
    return CountColons(text) != CountMembers(root);
}

} // namespace ksm
