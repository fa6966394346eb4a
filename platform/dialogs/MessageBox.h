#pragma once

#include <string_view>

#include "platform/machine/BoxAnswer.h"

namespace platform {

/// Buttons of a message box.
enum class BoxButtons { ok, yesNo };
/// The picture in a message box.
enum class BoxIcon { none, question };

/// Shows a message box with the program's name as its caption; `text` is code page 1253. If the machine has
/// prepared answers, the box is not shown and the next answer is taken. The trace records the box in either
/// case.
BoxAnswer AfxMessageBox(std::string_view text, BoxButtons buttons = BoxButtons::ok);
/// The same with another caption, code page 1253.
BoxAnswer MessageBox(std::string_view text, std::string_view caption, BoxButtons buttons = BoxButtons::ok,
                     BoxIcon icon = BoxIcon::none);

/// While such an object exists no box is shown, since nobody may be there to answer it: the text is written
/// to standard error, and the box is answered as if it had been closed. One that is shown already is closed.
class UnattendedBoxes {
  public:
    UnattendedBoxes();
    ~UnattendedBoxes();
    UnattendedBoxes(const UnattendedBoxes&) = delete;
    UnattendedBoxes& operator=(const UnattendedBoxes&) = delete;
};

}  // namespace platform
