#pragma once

#include <QUrl>
#include <functional>
#include <memory>
#include <string>

#include "platform/components/Component.h"
#include "platform/components/PageTools.h"
#include "platform/components/WebPageInspector.h"

class QWidget;

namespace platform {

struct PageRequest;

/// What shows the pages of one browser component: the engine's view and page, and all that belongs to them.
/// It comes from a library of its own, since the engine takes as long to load as the rest of the program's
/// start.
class BrowserEngine : public WebPageInspector, public PageOnShow {
  public:
    /// What it asks of the component.
    struct Questions {
        /// Whether a navigation may go on that the page wants. May run an event loop.
        std::function<bool(const PageRequest& request)> passes;
        /// Takes a command that a component's part of the page sends (see PagePart): class id and number.
        std::function<void(const std::string& classId, LPARAM command)> sendCommand;
    };

    /// The widget that shows the page, a child of the one given when it was made.
    virtual QWidget& widget() = 0;
    virtual bool busy() const = 0;
    /// Goes to an address that the program wants, in its normalised form, where the page begins so.
    virtual void open(const QUrl& url, const PageStart& start) = 0;
    /// Loads the page again, without asking whether it may.
    virtual void reload() = 0;
    /// The user's presses in the page shown so far no longer count.
    virtual void forgetPresses() = 0;
    /// The page as an automation object, see WebBrowserComponent::document.
    virtual std::shared_ptr<Dispatch> document() = 0;
};

}  // namespace platform
