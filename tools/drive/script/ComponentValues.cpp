#include "tools/drive/script/ComponentValues.h"

#include "platform/text/CodePage1253.h"
#include "tools/drive/script/Numbers.h"

namespace drive {

using platform::TypeCode;
using platform::Variant;

namespace {

template <class T>
std::optional<Variant> numberVariant(std::string_view word) {
    const std::optional<T> value = number<T>(word);
    return value ? std::optional(Variant(*value)) : std::nullopt;
}

std::optional<bool> truth(std::string_view word) {
    if (word == "true") return true;
    if (word == "false") return false;
    return std::nullopt;
}

std::optional<Variant> truthVariant(std::string_view word) {
    const std::optional<bool> value = truth(word);
    return value ? std::optional(Variant(*value)) : std::nullopt;
}

std::optional<Variant> referenceVariant(std::string_view word, std::deque<bool>& references) {
    const std::optional<bool> value = truth(word);
    if (!value) return std::nullopt;
    return Variant(&references.emplace_back(*value));
}

std::optional<Variant> variantOf(TypeCode type, std::string_view word, std::deque<bool>& references) {
    switch (type) {
        case TypeCode::i2:
            return numberVariant<std::int16_t>(word);
        case TypeCode::i4:
            return numberVariant<std::int32_t>(word);
        case TypeCode::boolean:
            return truthVariant(word);
        case TypeCode::booleanRef:
            return referenceVariant(word, references);
        case TypeCode::text:
            return Variant(platform::fromUtf8(word));
        case TypeCode::variant: {
            std::optional<Variant> asNumber = numberVariant<std::int32_t>(word);
            return asNumber ? asNumber : Variant(platform::fromUtf8(word));
        }
        case TypeCode::none:
        case TypeCode::dispatch:
            break;
    }
    return std::nullopt;
}

}  // namespace

std::optional<ComponentArguments> componentArguments(std::span<const TypeCode> types,
                                                     std::span<const std::string> words) {
    if (types.size() != words.size()) return std::nullopt;
    ComponentArguments arguments;
    for (std::size_t i = 0; i < types.size(); ++i) {
        std::optional<Variant> value = variantOf(types[i], words[i], arguments.references);
        if (!value) return std::nullopt;
        arguments.values.push_back(std::move(*value));
    }
    return arguments;
}

Json variantJson(const Variant& value) {
    return std::visit(
        [](const auto& held) -> Json {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::string>) {
                return text(held);
            } else if constexpr (std::is_same_v<T, bool*>) {
                return *held;
            } else if constexpr (std::is_arithmetic_v<T>) {
                return held;
            } else {
                return nullptr;
            }
        },
        value.value);
}

}  // namespace drive
