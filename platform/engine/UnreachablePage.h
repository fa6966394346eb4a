#pragma once

#include <QString>
#include <QUrl>

namespace platform {

/// The page that stands in place of one that could not be had from the network.
QString unreachablePage(const QUrl& url);

}  // namespace platform
