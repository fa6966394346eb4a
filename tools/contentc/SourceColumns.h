#pragma once

#include "tools/contentc/source/Content.h"

namespace contentc {

/// Adds columns to messages about pages that have none, since they are about the finished HTML: where what a
/// message names stands just once in its line of the source.
void addColumns(const Content& content, Diagnostics& diagnostics);

}  // namespace contentc
