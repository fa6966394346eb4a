#pragma once

#include <string>
#include <string_view>

class QString;
class QWidget;

namespace platform {

/// A control that keeps its text itself.
class TextHolder {
  public:
    virtual ~TextHolder() = default;
    virtual QString content() const = 0;
    virtual void setContent(const QString& text) = 0;
};

/// What stands in a control or in a window's caption; a bitmap has no text.
std::string controlText(const QWidget& control);
void setControlText(QWidget& control, std::string_view text);

}  // namespace platform
