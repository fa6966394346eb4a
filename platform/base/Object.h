#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace platform {

class CArchive;
class CObject;

/// Name of a class and how to make an object of it.
struct CRuntimeClass {
    std::string_view name;
    std::unique_ptr<CObject> (*create)() = nullptr;  ///< null for a class that is not made by name
    std::uint16_t schema =
        0;  ///< version of the form that its objects have in an archive; 0 when they have none
};

/// Base of the classes that tell their own name.
class CObject {
  public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
    virtual const CRuntimeClass& GetRuntimeClass() const;
    /// Whether the object is of this very class.
    bool IsKindOf(const CRuntimeClass& runtimeClass) const { return &GetRuntimeClass() == &runtimeClass; }
    /// Stores the object's content or loads it, as the archive's direction says.
    virtual void Serialize(CArchive&) {}
};

/// The run-time class of a default-constructible class.
template <class T>
constexpr CRuntimeClass MakeRuntimeClass(std::string_view name, std::uint16_t schema = 0) {
    return {name, []() -> std::unique_ptr<CObject> { return std::make_unique<T>(); }, schema};
}

}  // namespace platform
