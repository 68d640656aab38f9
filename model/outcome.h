// What came of something that can fail.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace ksm {

/// Why something failed, as a sentence for the user. UTF-8.
struct Failure {
    std::string Reason;
};

/// A value, or why there is none; without a value, that something is done, or why it is not.
template<typename Value = std::monostate>
class Outcome {
public:
    Outcome(Value value = {}) : content(std::move(value)) {}
    Outcome(Failure failure) : content(std::move(failure)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content); }
    const Value& operator*() const { return std::get<Value>(content); }
    const Value* operator->() const { return &std::get<Value>(content); }
    /// Empty where nothing failed.
    std::string Reason() const { return *this ? std::string() : std::get<Failure>(content).Reason; }

private:
    std::variant<Value, Failure> content;
};

} // namespace ksm
