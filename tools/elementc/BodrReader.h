#pragma once

#include <string>
#include <string_view>

#include "tools/elementc/Record.h"

namespace elementc {

/// Reads the elements 1 to 118 from the Blue Obelisk's `elements.xml`. The fields get our names: symbol,
/// name, electronegativity (Pauling), ionisation and affinity (eV), melting and boiling (K), discovered
/// (year, 0 for antiquity), configuration ("Ar 3d6 4s2"). `file` is its name in messages.
Result<Records> readBodr(std::string_view xml, const std::string& file);

}  // namespace elementc
