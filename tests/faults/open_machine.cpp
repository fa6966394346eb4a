// Opens the user's machine as the program does at its start: open-machine FOLDER PROGRAMS. Exit status: 0
// when it is open, 1 when the user would be told why not, with that text on standard error.

#include <cstdio>

#include "platform/base/Resources.h"
#include "platform/text/CodePage1253.h"
#include "src/host/OwnMachine.h"
#include "src/resources/ResourceTable.h"

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    platform::SetResources(kalyxo::ProgramResources());
    const kalyxo::PresentScreen present{{1280, 800, 24}, {{"SM_CXMAXIMIZED", 1288}}};
    const auto opened = kalyxo::OpenOwnMachine(argv[1], kalyxo::FindInstalledFiles(argv[2]), present, {});
    if (!opened) std::fprintf(stderr, "%s\n", platform::toUtf8(opened.failure().message).c_str());
    return opened ? 0 : 1;
}
