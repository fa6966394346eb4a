#pragma once

#include <QFont>

namespace platform {

/// The program's font in a size in pixels. Its letters are as wide as those of the fonts that the program
/// names.
QFont programFont(int pixels);

}  // namespace platform
