#pragma once

#include <string>
#include <vector>

#include "tools/contentc/PageScaffold.h"
#include "tools/contentc/source/PageSource.h"
#include "tools/contentc/source/References.h"

namespace contentc {

/// The longest line of a finished page, in bytes. Page preparation reads lines of up to 26,000 bytes and
/// needs room for what it adds.
inline constexpr std::size_t maxPageLine = 20'000;

/// Compiles a page: the body in its scaffold (an empty one adds nothing), with marks replaced and lines ended
/// by CR LF. Its references are added to `references`, and what is wrong is reported.
std::string compilePage(const PageSource& page, const PageScaffold& scaffold, References& references,
                        Diagnostics& diagnostics);

}  // namespace contentc
