#pragma once

#include <string>
#include <utility>
#include <variant>

namespace platform {

/// Why something could not be done, in words for a person. UTF-8, unless the function says otherwise.
struct Failure {
    std::string message;

    bool operator==(const Failure&) const = default;
};

/// The outcome of a function that can fail and says why: its value, or a failure. Where the reason does not
/// matter, a `bool` or an `optional` is enough.
template <typename T>
class [[nodiscard]] Result {
  public:
    Result(T value) : outcome_(std::move(value)) {}
    Result(Failure failure) : outcome_(std::move(failure)) {}

    explicit operator bool() const { return std::holds_alternative<T>(outcome_); }

    // The value; there must be one.
    T& operator*() & { return *std::get_if<T>(&outcome_); }
    const T& operator*() const& { return *std::get_if<T>(&outcome_); }
    T&& operator*() && { return std::move(*std::get_if<T>(&outcome_)); }
    T* operator->() { return std::get_if<T>(&outcome_); }
    const T* operator->() const { return std::get_if<T>(&outcome_); }

    /// The failure; there must be one.
    const Failure& failure() const { return *std::get_if<Failure>(&outcome_); }
    /// The failure's message, empty when there is a value.
    std::string message() const { return *this ? std::string() : failure().message; }

  private:
    std::variant<T, Failure> outcome_;
};

/// The outcome of a function that gives nothing but can fail.
template <>
class [[nodiscard]] Result<void> {
  public:
    Result() = default;
    Result(Failure failure) : outcome_(std::move(failure)) {}

    explicit operator bool() const { return std::holds_alternative<std::monostate>(outcome_); }

    /// The failure; there must be one.
    const Failure& failure() const { return *std::get_if<Failure>(&outcome_); }
    /// The failure's message, empty after success.
    std::string message() const { return *this ? std::string() : failure().message; }

  private:
    std::variant<std::monostate, Failure> outcome_;
};

}  // namespace platform
