#pragma once

#include <QCollator>

namespace platform {

/// The alphabetical order in which controls sort what they show: that of a Greek dictionary.
const QCollator& greekOrder();

}  // namespace platform
