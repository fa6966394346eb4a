#pragma once

/// Makes the process's application object, which widgets need, unless it is there; without a display on
/// screen.
void needApplication();
