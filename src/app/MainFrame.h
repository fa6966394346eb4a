#pragma once

#include "platform/framework/FrameWnd.h"

namespace kalyxo {

/// The program's one top-level window. It keeps the product's name as its title, a least size, and saves its
/// layout when it ends.
class CMainFrame : public platform::CFrameWnd {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    bool PreCreateWindow(platform::CREATESTRUCT& cs) override;
    void ActivateFrame(int showCommand) override;

  private:
    int OnCreate(platform::CREATESTRUCT& cs);
    void OnSize(platform::UINT type, int width, int height);
    void OnDestroy();
    void keepLeastSize();
};

/// The outer rectangle that a frame of this size is enlarged to, its corner kept. `maximised` is the size of
/// a maximised window.
platform::CRect WithLeastFrameSize(const platform::CRect& frame, platform::CSize maximised);

}  // namespace kalyxo
