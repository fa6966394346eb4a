#pragma once

#include <string>
#include <string_view>

class QString;
class QWidget;

namespace platform {

/// A control that stores its text itself.
class TextHolder {
  public:
    virtual ~TextHolder() = default;
    virtual QString content() const = 0;
    virtual void setContent(const QString& text) = 0;
};

/// The text of a control, or a window's caption. A bitmap has no text.
std::string controlText(const QWidget& control);
/// Sets that text.
void setControlText(QWidget& control, std::string_view text);

}  // namespace platform
