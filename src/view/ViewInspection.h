#pragma once

#include "src/bookmarks/BookmarkList.h"
#include "src/pages/GlossaryPopup.h"
#include "src/view/ContentPanes.h"
#include "src/view/HotItems.h"
#include "src/view/Navigator.h"

namespace kalyxo {

/// What the view shows and knows, for the scripted desktop; valid as long as the view.
struct ViewInspection {
    ContentMode mode;
    const Navigator& navigator;
    const HotItems& items;
    const PagePresenter& pages;
    const BookmarkList& bookmarks;
    const GlossaryPopup& glossary;
    platform::HWND splitter;  ///< 0 while there is none
    platform::HWND panel;
    bool startupFailed;
};

}  // namespace kalyxo
