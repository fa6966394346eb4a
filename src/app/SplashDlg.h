#pragma once

#include "platform/dialogs/Dialog.h"

namespace kalyxo {

/// The picture in the middle of the screen while the program starts.
class CSplashDlg : public platform::CDialog {
  public:
    /// Creates the window, shows it and paints it at once. Without its template there is no window.
    CSplashDlg();

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

  private:
    void OnPaint();
    bool OnEraseBkgnd(platform::CDC& dc);
    void drawPicture(platform::CDC& dc, platform::CSize part);

    platform::UINT m_nBitmapId;
    platform::CBitmap m_picture;  ///< the resource's picture, kept since it is drawn several times in a row
};

}  // namespace kalyxo
