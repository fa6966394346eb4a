#pragma once

#include <QWebEngineScript>

#include "platform/components/PageTools.h"

namespace platform {

/// The script that lets a page begin as `start` says, before the page is seen.
QWebEngineScript pageBeginning(const PageStart& start);

/// Takes the marks off a page.
QString unmarkScript();

}  // namespace platform
