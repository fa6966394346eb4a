#include <cstdio>

#include "platform/base/Resources.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/framework/Desktop.h"
#include "platform/framework/Run.h"
#include "platform/text/CodePage1253.h"
#include "src/app/KalyxoApp.h"
#include "src/host/CommandLine.h"
#include "src/host/OwnMachine.h"
#include "src/host/SharedContent.h"
#include "src/host/SpareCache.h"
#include "src/resources/ResourceIds.h"
#include "src/resources/ResourceTable.h"

namespace {

constexpr int kNoMachine = 1;
constexpr int kWrongArguments = 2;
constexpr int kNoSandbox = 3;

kalyxo::Arguments behindName(int argc, char** argv) {
    return kalyxo::Arguments(argv, static_cast<std::size_t>(argc)).subspan(argc > 0 ? 1 : 0);
}

int complain(const std::string& problem) {
    std::fprintf(stderr, "kalyxo: %s\n", problem.c_str());
    return kWrongArguments;
}

/// The content folder that is set for all users; empty, and told, when it holds none.
std::filesystem::path sharedContent() {
    auto folder = kalyxo::SharedContentFolder(kalyxo::kSharedSettingsFile);
    if (folder.empty() || kalyxo::HoldsContent(folder)) return folder;
    std::string text(platform::LoadString(kalyxo::IDS_NO_SHARED_CONTENT));
    platform::AfxMessageBox(text.replace(text.find("%s"), 2, platform::fromUtf8(folder.string())));
    return {};
}

kalyxo::InstalledFiles findFiles(bool needsContent) {
    auto files = kalyxo::FindInstalledFiles(kalyxo::RunningProgramsFolder());
    if (needsContent) files.shared = sharedContent();
    return files;
}

/// The user's machine; null when the user cancels, or is told why it cannot be opened.
std::unique_ptr<platform::Machine> openMachine(const platform::Desktop& desktop,
                                               const kalyxo::InstalledFiles& installed) {
    std::optional<platform::CProgress> progress(platform::LoadString(kalyxo::IDS_PREPARING_MACHINE));
    auto opened = kalyxo::OpenOwnMachine(kalyxo::OwnMachineFolder(), installed,
                                         {desktop.screen(), desktop.metrics(), desktop.printer()},
                                         kalyxo::PresentMedia(), progress->Step());
    progress.reset();
    if (opened) return *std::move(opened);
    platform::AfxMessageBox(opened.failure().message);
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    // Answered without a desktop, where there may be none.
    if (const auto answer = kalyxo::AnswerTo(behindName(argc, argv))) {
        std::fwrite(answer->data(), 1, answer->size(), stdout);
        return 0;
    }
    platform::SetResources(kalyxo::ProgramResources());
    const platform::Desktop desktop(argc, argv);
    const auto dataFolder = kalyxo::GivenDataFolder(behindName(argc, argv));
    if (!dataFolder) return complain(dataFolder.failure().message);
    if (!desktop.allowsSandbox()) {
        platform::AfxMessageBox(platform::LoadString(kalyxo::IDS_START_NO_SANDBOX));
        return kNoSandbox;
    }
    const auto opened = openMachine(desktop, findFiles(dataFolder->empty()));
    if (!opened) return kNoMachine;
    platform::setMachine(opened.get());
    const kalyxo::SpareCache cache(*opened);
    kalyxo::CKalyxoApp program(dataFolder->empty() ? std::string()
                                                   : kalyxo::AddDrive(opened->files(), *dataFolder));
    program.m_bFollowContent = kalyxo::FollowsContent(behindName(argc, argv));
    return platform::RunProgram(program);
}
