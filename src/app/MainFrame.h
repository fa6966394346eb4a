#pragma once

#include "platform/framework/FrameWnd.h"

namespace kalyxo {

/// The program's one top-level window. Its title is always the
/// product's name, it has a minimum size, and it saves its layout when it ends.
class CMainFrame : public platform::CFrameWnd {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    bool PreCreateWindow(platform::CREATESTRUCT& cs) override;
    void ActivateFrame(int showCommand) override;

  private:
    void OnSize(platform::UINT type, int width, int height);
    void OnDestroy();
    void OnFullScreen();
    void keepMinSize();
    void keepLayout();
};

}  // namespace kalyxo
