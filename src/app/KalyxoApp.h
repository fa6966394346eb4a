#pragma once

#include <string>
#include <utility>

#include "platform/base/Geometry.h"
#include "platform/framework/WinApp.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

/// The application object: the start-up sequence, which fills the state that everything else reads.
class CKalyxoApp : public platform::CWinApp, public ProgramState {
  public:
    /// `dataFolder` is shown in this run whatever cset.ini says; it ends with a backslash.
    explicit CKalyxoApp(std::string dataFolder = {}) : m_strGivenDataFolder(std::move(dataFolder)) {}

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    bool InitInstance() override;
    /// Swallows right clicks everywhere, and turns Enter in the browse selection's text field into a message
    /// to its notification window.
    bool PreTranslateMessage(const platform::MSG& message) override;

  private:
    void OnAppAbout();
    bool ReadRegistrySettings();
    bool SetUpDataPaths();
    void addDocTemplate();
    void chooseFirstShow();
    void warnOfFewColours();

    std::string m_strGivenDataFolder;
};

}  // namespace kalyxo
