#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/framework/Desktop.h"
#include "platform/framework/Run.h"
#include "platform/text/CodePage1253.h"
#include "src/app/KalyxoApp.h"
#include "src/host/OwnMachine.h"
#include "src/resources/ResourceIds.h"
#include "src/resources/ResourceTable.h"

namespace {

constexpr int kNoMachine = 1;

/// `problem` says which file is damaged, in UTF-8.
void tellNoMachine(const std::string& problem) {
    platform::AfxMessageBox(std::string(platform::LoadString(kalyxo::IDS_CANNOT_START)) +
                            platform::fromUtf8(problem) +
                            std::string(platform::LoadString(kalyxo::IDS_MEND_FILE)));
}

/// The user's machine; null, after the user has been told why, when it cannot be opened.
std::unique_ptr<platform::Machine> openMachine(const platform::Desktop& desktop) {
    std::optional<platform::CProgress> progress(platform::LoadString(kalyxo::IDS_PREPARING_MACHINE));
    auto opened = kalyxo::OpenOwnMachine(
        kalyxo::OwnMachineFolder(), kalyxo::FindInstalledFiles(kalyxo::RunningProgramsFolder()),
        {desktop.screen(), desktop.metrics(), desktop.printer()}, kalyxo::PresentMedia(), progress->Step());
    const bool cancelled = progress->Cancelled();
    progress.reset();
    if (opened) return *std::move(opened);
    if (!cancelled) tellNoMachine(opened.failure().message);
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    platform::SetResources(kalyxo::ProgramResources());
    const platform::Desktop desktop(argc, argv);
    const auto opened = openMachine(desktop);
    if (!opened) return kNoMachine;
    platform::setMachine(opened.get());
    kalyxo::CKalyxoApp program;
    return platform::RunProgram(program);
}
