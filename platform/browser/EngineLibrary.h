#pragma once

#include <memory>

#include "platform/browser/BrowserEngine.h"

/// The library with the browser's engine. It uses the platform's functions and objects of the program that
/// loads it, which exports them.
namespace platform {

/// The function that the library exports with C linkage, and its name.
using MakeEngineFunction = BrowserEngine* (*)(QWidget* parent, BrowserEngine::Questions questions);
inline constexpr const char* makeEngineName = "kalyxoMakeEngine";

/// Whether the library and the engine's own program, without which it would end this one, are where they are
/// looked for. To be asked once the application object is made.
bool engineIsInstalled();

/// Makes an engine, loading the library first. Ends the program when the library is damaged.
std::unique_ptr<BrowserEngine> makeEngine(QWidget* parent, BrowserEngine::Questions questions);

}  // namespace platform
