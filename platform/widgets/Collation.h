#pragma once

#include <QCollator>

namespace platform {

/// The alphabetical order in which controls sort what they show: that of a dictionary, Latin
/// letters before Greek ones.
const QCollator& greekOrder();

}  // namespace platform
