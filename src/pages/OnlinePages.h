#pragma once

#include <string>
#include <string_view>

namespace kalyxo {

/// Pages that the program shows in a window of their own.
enum class OnlinePage { product, support, products };

/// The address of a page on the product's or the maker's web site. The host is a bare name; an empty one
/// gives an empty address.
std::string OnlineAddress(OnlinePage page, std::string_view productHost, std::string_view makerHost);

}  // namespace kalyxo
