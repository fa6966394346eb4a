#pragma once

#include <string>
#include <string_view>

class QWidget;

namespace platform {

/// What stands in a control or in a window's caption; a bitmap has no text.
std::string controlText(const QWidget& control);
void setControlText(QWidget& control, std::string_view text);

}  // namespace platform
