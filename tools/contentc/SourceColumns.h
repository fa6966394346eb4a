#pragma once

#include "tools/contentc/source/Content.h"

namespace contentc {

/// Adds columns to messages about the finished HTML of pages, which have none: a message gets one when what
/// it names stands just once in its line of the source.
void addColumns(const Content& content, Diagnostics& diagnostics);

}  // namespace contentc
