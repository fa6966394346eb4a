#pragma once

#include <QFont>

namespace platform {

/// The program's face in a size in pixels. Metrically the same as the faces that the program names.
QFont programFont(int pixels);

}  // namespace platform
