#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "platform/base/Object.h"

namespace platform {

/// Stores values and objects as bytes in memory, or loads them from there; docs/formats/bookmarks.md
/// describes the bytes. The constructor chooses the direction, and `Exchange` works in both. Loading checks
/// every length against the bytes that are left before it allocates memory. Bytes that do not fit make the
/// archive fail, and a failed archive loads nothing more.
class CArchive {
  public:
    using Classes = std::span<const CRuntimeClass* const>;

    /// An archive for storing.
    CArchive() = default;
    /// An archive for loading objects of these classes; `bytes` and `classes` must outlive it.
    CArchive(std::string_view bytes, Classes classes);

    bool Failed() const { return failed_; }
    void Fail() { failed_ = true; }
    /// The bytes stored so far.
    const std::string& Stored() const { return stored_; }
    /// How many bytes are left to load.
    std::size_t Remaining() const { return loaded_.size(); }

    /// Stores the values in order, or loads them. An integer takes the bytes of its type, little-endian.
    template <class... T>
    void Exchange(T&... values) {
        (exchange(values), ...);
    }
    /// Stores the elements of an array from index `from` on, or loads elements until the array has `count` of
    /// them. The count itself is not part of it.
    template <class T>
    void ExchangeElements(std::vector<T>& elements, std::size_t count, std::size_t from = 0) {
        if (!storing_ && !makeRoom(elements, count, from)) return;
        for (std::size_t i = from; i < elements.size(); ++i) exchange(elements[i]);
    }

    /// A number of elements: in two bytes, or in six from 65535 on.
    void StoreCount(std::size_t count);
    std::size_t LoadCount();

    /// Stores an object, after a tag that names its class.
    void StoreObject(CObject& object);
    /// The next object, null after a failure. A tag that stands for no object or for one stored earlier is a
    /// failure: the program stores neither.
    std::unique_ptr<CObject> LoadObject();

  private:
    template <class T>
    void exchange(T& value) {
        static_assert(std::is_integral_v<T> || std::is_same_v<T, std::byte>);
        using Bits = std::make_unsigned_t<std::conditional_t<std::is_integral_v<T>, T, unsigned char>>;
        if (storing_) {
            store(static_cast<Bits>(value), sizeof(T));
        } else {
            value = static_cast<T>(static_cast<Bits>(load(sizeof(T))));
        }
    }
    void exchange(std::string& text);

    template <class T>
    bool makeRoom(std::vector<T>& elements, std::size_t count, std::size_t from) {
        if (count < from || (count - from) > Remaining() / sizeof(T)) Fail();
        if (!failed_) elements.resize(count);
        return !failed_;
    }

    void store(std::uint32_t value, std::size_t size);
    std::uint32_t load(std::size_t size);
    std::string_view loadBytes(std::size_t size);
    void storeTextLength(std::size_t length);
    std::size_t loadTextLength();
    void storeClassTag(const CRuntimeClass& runtimeClass);
    const CRuntimeClass* loadClassTag();
    const CRuntimeClass* loadNewClass();
    const CRuntimeClass* classOfIndex(std::uint32_t index) const;

    bool storing_ = true;
    bool failed_ = false;
    std::string stored_;
    std::string_view loaded_;
    Classes classes_;
    /// Classes and objects are numbered together, in the order in which they come. Only the numbers of
    /// classes are ever looked up.
    std::uint32_t nextIndex_ = 1;
    std::map<std::uint32_t, const CRuntimeClass*> classOfIndex_;
    std::map<const CRuntimeClass*, std::uint32_t> indexOfClass_;
};

}  // namespace platform
