#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <variant>

namespace platform {

class Dispatch;

/// An automation value: empty, I2, I4, BOOL, text (code page 1253), a reference to a BOOL that the
/// receiver may set, or an object.
struct Variant {
    using Value = std::variant<std::monostate, std::int16_t, std::int32_t, bool, std::string, bool*,
                               std::shared_ptr<Dispatch>>;
    Value value;

    Variant() = default;
    template <class T>
        requires(!std::is_same_v<std::remove_cvref_t<T>, Variant>)
    // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): the constraint keeps copies and moves out
    explicit Variant(T&& v) : value(std::forward<T>(v)) {}

    bool empty() const { return std::holds_alternative<std::monostate>(value); }
    /// The value as T, or null when it is of another type.
    template <class T>
    const T* get() const {
        return std::get_if<T>(&value);
    }
};

/// How an operation is invoked.
enum class InvokeKind { method, propertyGet, propertyPut };

/// An automation object that is not a window, such as the browser's document.
class Dispatch {
  public:
    virtual ~Dispatch() = default;
    /// Carries out a command of the object's command target; false when it cannot.
    virtual bool exec(std::int32_t command) = 0;
};

}  // namespace platform
