#pragma once

#include <QString>

#include "platform/base/Result.h"

namespace artwork {

using platform::Failure;
using platform::Result;

/// Why a file could not be read, drawn or written: its name before the reason.
inline Failure failureOf(const QString& file, const QString& reason) {
    return {(file + ": " + reason).toStdString()};
}

}  // namespace artwork
