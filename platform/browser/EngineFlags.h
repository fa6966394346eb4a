#pragma once

#include <string>
#include <vector>

namespace platform {

/// The environment variable with the switches that Qt hands on to the engine.
inline constexpr const char* engineFlagsVariable = "QTWEBENGINE_CHROMIUM_FLAGS";

/// Adds the engine's switches for content to those that are given. At first no host is found on the network.
/// To be called once, before the engine starts.
void setEngineFlags();

/// Whether this folder of devices (`/dev/`) has a graphics card that draws. Without one, OpenGL is drawn by
/// the processor, and the whole window with each picture.
bool hasGraphicsCard(const std::string& devices);

/// Lets the engine find these hosts on the network, and no other. To be called before the first browser is
/// made; names of other characters than letters, digits, hyphens and stops are left out.
void letEngineFind(const std::vector<std::string>& hosts);

}  // namespace platform
