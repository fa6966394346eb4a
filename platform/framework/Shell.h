#pragma once

#include <string_view>

namespace platform {

/// Has the desktop do `verb` ("open") on a program, `parameters` behind its name, in a working folder; all
/// code page 1253. Recorded in the trace. "notepad.exe" is the desktop's editor for plain text, and its
/// parameters are the DOS path of a file; no other program is known. With the machine's virtual time nothing
/// is started.
void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                  std::string_view folder);

}  // namespace platform
