#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace platform {

class CArchive;
class CObject;

/// The name of a class, and how to make an object of it.
struct CRuntimeClass {
    std::string_view name;
    std::unique_ptr<CObject> (*create)() = nullptr;  ///< null if objects are not made by name
    std::uint16_t schema = 0;  ///< version of its objects' form in archives; 0 if they are not stored
};

/// Base of the classes that know their run-time class.
class CObject {
  public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
    virtual const CRuntimeClass& GetRuntimeClass() const;
    /// Whether the object is of exactly this class.
    bool IsKindOf(const CRuntimeClass& runtimeClass) const { return &GetRuntimeClass() == &runtimeClass; }
    /// Stores or loads the object's content, according to the archive's direction.
    virtual void Serialize(CArchive&) {}
};

/// The run-time class of a default-constructible class.
template <class T>
constexpr CRuntimeClass MakeRuntimeClass(std::string_view name, std::uint16_t schema = 0) {
    return {name, []() -> std::unique_ptr<CObject> { return std::make_unique<T>(); }, schema};
}

}  // namespace platform
