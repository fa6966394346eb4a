#pragma once

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "platform/files/FileHandle.h"

class QUrl;

/// What is answered to requests that do not want a file as it lies on the drive: the frames of plug-ins and
/// components, and what these ask for in turn. The query of the address says what it is.
///
/// | query | answer |
/// |---|---|
/// | `raw` | the embedded file itself |
/// | `resource=NAME` | a file beside the viewer page of the plug-in (see PluginTypes) |
/// | `from=SECOND&length=SECONDS`, `describe` | see VideoConversion.h |
/// | `component=CLASSID` | the frame of a component's part of the page (see ComponentModule) |
/// | anything else | for a frame, the viewer page of the embedded file |
namespace platform {

/// The answer to one request; a null device when it cannot be given.
struct FrameAnswer {
    QByteArray type;
    std::unique_ptr<QIODevice> device;
};

/// The answer to a request for the file of this DOS path, which is closed when there is none; nothing when it
/// is the file itself that is wanted. `frame`: whether it is to be shown in a frame or as a page. The viewer
/// page is the answer for a missing file too: it says so in its frame.
std::optional<FrameAnswer> frameAnswer(const QUrl& url, const std::string& dosPath, const FileHandle& file,
                                       bool frame);

/// The device, opened; null when it cannot be.
std::unique_ptr<QIODevice> openForReading(std::unique_ptr<QIODevice> device);

/// An open file as a device, with a descriptor of its own; null when there is none or it cannot be read.
std::unique_ptr<QFile> deviceOf(const FileHandle& file);

}  // namespace platform
