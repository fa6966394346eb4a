#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/text/CodePage1253.h"

namespace drive {

/// Answers keep their keys in the order in which they were set.
using Json = nlohmann::ordered_json;

/// A text of the program for an answer.
inline Json text(std::string_view cp1253) { return platform::toUtf8(cp1253); }

/// `[left, top, right, bottom]`.
inline Json rectangle(const platform::CRect& r) { return Json::array({r.left, r.top, r.right, r.bottom}); }

/// The answer on one line. A script may hold bytes that are not UTF-8; they become replacement characters.
inline std::string toLine(const Json& answer) {
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace drive
