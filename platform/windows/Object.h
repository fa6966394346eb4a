#pragma once

#include <memory>
#include <string_view>

namespace platform {

class CObject;

/// Name of a class and how to make an object of it.
struct CRuntimeClass {
    std::string_view name;
    std::unique_ptr<CObject> (*create)() = nullptr;  ///< null for a class that is not made by name
};

/// Base of the classes that tell their own name.
class CObject {
  public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
    virtual const CRuntimeClass& GetRuntimeClass() const;
};

/// The run-time class of a default-constructible class.
template <class T>
constexpr CRuntimeClass MakeRuntimeClass(std::string_view name) {
    return {name, []() -> std::unique_ptr<CObject> { return std::make_unique<T>(); }};
}

}  // namespace platform
