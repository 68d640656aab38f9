// Takes a JSON object apart and checks what it holds.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ksm {

/// Hands out the members of an object, each once. Whatever is wrong first, with any object that
/// shares `problem`, is described there; the answer then is a harmless one within the range asked
/// for, so that a reader can read on and look at the problem once, at the end.
class JsonMembers {
public:
    /// `place` says where in the file the object stands, as in "Players[3]"; it may be empty.
    JsonMembers(const QJsonValue& object, const QString& place, QString& problem);

    template<typename Whole = int>
    Whole Number(const char* name, int least, int most) {
        return static_cast<Whole>(CheckNumber(Take(name), Place(name), least, most));
    }
    bool Truth(const char* name);
    std::string Text(const char* name);
    /// The value of the enumeration whose words are listed in `words`.
    template<typename Enum>
    Enum Word(const char* name, std::span<const std::string_view> words) {
        return static_cast<Enum>(WordIndex(name, words));
    }
    /// A list with `least` to `most` elements; empty when it is wrong.
    QJsonArray List(const char* name, int least, int most);
    JsonMembers Object(const char* name);

    int CheckNumber(const QJsonValue& value, const QString& where, int least, int most);
    /// What Refuse and CheckNumber need to speak of the member, or of one element of a list.
    QString Place(const char* name) const;
    QString Place(const char* list, qsizetype index) const;

    /// Notes that `where` is wrong, unless something is already.
    void Refuse(const QString& where, const QString& what);
    /// To be called after the last member was taken: refuses members that nobody knows.
    void Finish();

private:
    QJsonValue Take(const char* name);
    std::size_t WordIndex(const char* name, std::span<const std::string_view> words);

    QJsonObject rest;
    QString ownPlace;
    QString& firstProblem;
};

/// Whether any object in `root` had two members of the same name in `text`, the valid JSON from
/// which it was read.
bool HasRepeatedMembers(const QByteArray& text, const QJsonObject& root);

} // namespace ksm
