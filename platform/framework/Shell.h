#pragma once

#include <string_view>

namespace platform {

/// Has the desktop do `verb` ("open") with a program, its `parameters` and a working folder; all in code page
/// 1253. Recorded in the trace. The only known program is "notepad.exe", which stands for the desktop's text
/// editor; its parameter is the DOS path of a file. With virtual time nothing is started.
void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                  std::string_view folder);

}  // namespace platform
