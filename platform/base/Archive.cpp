#include "platform/base/Archive.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::uint32_t largeCount = 0xFFFF;
constexpr std::uint32_t newClassTag = 0xFFFF;
constexpr std::uint32_t largeTag = 0x7FFF;
constexpr std::uint32_t classBit = 0x8000;
constexpr std::uint32_t largeClassBit = 0x80000000;

constexpr std::size_t mediumText = 0xFF;
constexpr std::size_t largeText = 0xFFFE;
constexpr std::uint32_t largeTextMark = 0xFFFF;

}  // namespace

CArchive::CArchive(std::string_view bytes, Classes classes)
    : storing_(false), loaded_(bytes), classes_(classes) {}

void CArchive::store(std::uint32_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) stored_ += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::string_view CArchive::loadBytes(std::size_t size) {
    if (size > Remaining()) Fail();
    if (failed_) return {};
    const std::string_view bytes = loaded_.substr(0, size);
    loaded_.remove_prefix(size);
    return bytes;
}

std::uint32_t CArchive::load(std::size_t size) {
    std::uint32_t value = 0;
    int shift = 0;
    for (const char byte : loadBytes(size)) {
        value |= std::uint32_t{static_cast<unsigned char>(byte)} << shift;
        shift += 8;
    }
    return value;
}

void CArchive::exchange(std::string& text) {
    if (storing_) {
        storeTextLength(text.size());
        stored_ += text;
    } else {
        text = loadBytes(loadTextLength());
    }
}

void CArchive::storeTextLength(std::size_t length) {
    store(static_cast<std::uint32_t>(std::min(length, mediumText)), 1);
    if (length < mediumText) return;
    store(length < largeText ? static_cast<std::uint32_t>(length) : largeTextMark, 2);
    if (length >= largeText) store(static_cast<std::uint32_t>(length), 4);
}

std::size_t CArchive::loadTextLength() {
    std::uint32_t length = load(1);
    if (length == mediumText) length = load(2);
    if (length == largeTextMark) return load(4);
    // Storing never writes this length: in the archive form it announces a text in Unicode.
    if (length == largeText) Fail();
    return length;
}

void CArchive::StoreCount(std::size_t count) {
    store(static_cast<std::uint32_t>(std::min<std::size_t>(count, largeCount)), 2);
    if (count >= largeCount) store(static_cast<std::uint32_t>(count), 4);
}

std::size_t CArchive::LoadCount() {
    const std::uint32_t count = load(2);
    return count == largeCount ? load(4) : count;
}

void CArchive::StoreObject(CObject& object) {
    storeClassTag(object.GetRuntimeClass());
    ++nextIndex_;
    object.Serialize(*this);
}

void CArchive::storeClassTag(const CRuntimeClass& runtimeClass) {
    const auto [known, isNew] = indexOfClass_.try_emplace(&runtimeClass, nextIndex_);
    const std::uint32_t index = known->second;
    if (isNew) {
        ++nextIndex_;
        store(newClassTag, 2);
        store(runtimeClass.schema, 2);
        store(static_cast<std::uint32_t>(runtimeClass.name.size()), 2);
        stored_ += runtimeClass.name;
    } else if (index < largeTag) {
        store(classBit | index, 2);
    } else {
        store(largeTag, 2);
        store(largeClassBit | index, 4);
    }
}

std::unique_ptr<CObject> CArchive::LoadObject() {
    const CRuntimeClass* const runtimeClass = loadClassTag();
    if (!runtimeClass) Fail();
    if (failed_) return nullptr;
    ++nextIndex_;
    std::unique_ptr<CObject> object = runtimeClass->create();
    object->Serialize(*this);
    return failed_ ? nullptr : std::move(object);
}

const CRuntimeClass* CArchive::loadClassTag() {
    const std::uint32_t tag = load(2);
    if (tag == newClassTag) return loadNewClass();
    if (tag == largeTag) {
        const std::uint32_t large = load(4);
        return (large & largeClassBit) != 0 ? classOfIndex(large & ~largeClassBit) : nullptr;
    }
    return (tag & classBit) != 0 ? classOfIndex(tag & ~classBit) : nullptr;
}

const CRuntimeClass* CArchive::loadNewClass() {
    const std::uint32_t schema = load(2);
    const std::string_view name = loadBytes(load(2));
    const auto found =
        std::ranges::find_if(classes_, [name](const CRuntimeClass* known) { return known->name == name; });
    if (found == classes_.end() || (*found)->schema != schema) return nullptr;
    classOfIndex_[nextIndex_++] = *found;
    return *found;
}

const CRuntimeClass* CArchive::classOfIndex(std::uint32_t index) const {
    const auto found = classOfIndex_.find(index);
    return found == classOfIndex_.end() ? nullptr : found->second;
}

}  // namespace platform
