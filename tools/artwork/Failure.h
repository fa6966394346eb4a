#pragma once

#include <QString>

namespace artwork {

/// Why a file could not be read, drawn or written.
struct Failure {
    QString file;
    QString reason;
};

}  // namespace artwork
