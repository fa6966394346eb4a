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

/// Values and objects in the archive form, in memory; docs/formats/bookmarks.md has its bytes. One direction
/// is chosen with the constructor, and `Exchange` works in either. Loading checks every length against what
/// is left before it takes memory. What does not fit makes the archive fail: from then on nothing is read.
class CArchive {
  public:
    using Classes = std::span<const CRuntimeClass* const>;

    /// For storing.
    CArchive() = default;
    /// For loading objects of these classes; `bytes` and `classes` must outlive the archive.
    CArchive(std::string_view bytes, Classes classes);

    bool IsStoring() const { return storing_; }
    bool Failed() const { return failed_; }
    void Fail() { failed_ = true; }
    /// What was stored so far.
    const std::string& Stored() const { return stored_; }
    /// How many bytes are left to load.
    std::size_t Remaining() const { return loaded_.size(); }

    /// Stores the values in order, or loads them. Integers are little-endian, of their own size.
    template <class... T>
    void Exchange(T&... values) {
        (exchange(values), ...);
    }
    /// Stores an array's elements from index `from` on, or loads so many that it has `count` of them; the
    /// count itself is not in the archive.
    template <class T>
    void ExchangeElements(std::vector<T>& elements, std::size_t count, std::size_t from = 0) {
        if (!storing_ && !makeRoom(elements, count, from)) return;
        for (std::size_t i = from; i < elements.size(); ++i) exchange(elements[i]);
    }

    /// A number of elements: two bytes, or six for a large one.
    void StoreCount(std::size_t count);
    std::size_t LoadCount();

    /// An object with the tag of its class.
    void StoreObject(CObject& object);
    /// Null after a failure. An object that is missing or was stored earlier is a failure too.
    std::unique_ptr<CObject> LoadObject();

  private:
    template <class T>
    void exchange(T& value) {
        static_assert(std::is_integral_v<T> || std::is_same_v<T, std::byte>);
        using Bits =
            std::make_unsigned_t<typename std::conditional_t<std::is_integral_v<T>, std::type_identity<T>,
                                                             std::type_identity<unsigned char>>::type>;
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
    /// Classes and objects are numbered together as they come; an object's number is never asked for.
    std::uint32_t nextIndex_ = 1;
    std::map<std::uint32_t, const CRuntimeClass*> classOfIndex_;
    std::map<const CRuntimeClass*, std::uint32_t> indexOfClass_;
};

}  // namespace platform
