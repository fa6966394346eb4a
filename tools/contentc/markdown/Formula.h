#pragma once

#include <string>
#include <string_view>

#include "tools/contentc/source/Message.h"

namespace contentc {

/// A formula in HTML.
struct Formula {
    /// In UTF-8.
    std::string html;
    /// What is wrong with the source, which is the message's value. Null when nothing is.
    const Message* fault = nullptr;
};

/// Sets what stands between `$` signs: chemical formulas and equations, quantities, units. Digits behind a
/// letter or a closing bracket go down, `^` lifts digits and signs, `_` lowers digits or one letter, both
/// whatever stands in braces behind them; `->`, `<=>` and other signs of ASCII become the right ones.
Formula compileFormula(std::string_view source);

}  // namespace contentc
