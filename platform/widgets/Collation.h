#pragma once

#include <QCollator>

namespace platform {

/// The alphabetical order in which controls sort their items: that of dictionaries, with Latin letters before
/// Greek ones.
const QCollator& greekOrder();

}  // namespace platform
