#pragma once

#include <string>
#include <string_view>

#include "tools/elementc/Record.h"

namespace elementc {

/// The elements 1 to 118 of the Blue Obelisk's `elements.xml`, under our field names: symbol, name,
/// electronegativity (Pauling), ionisation (eV), melting and boiling (K), discovered (year, 0 for antiquity),
/// configuration ("Ar 3d6 4s2"). `file` names it in messages.
Result<Records> readBodr(std::string_view xml, const std::string& file);

}  // namespace elementc
