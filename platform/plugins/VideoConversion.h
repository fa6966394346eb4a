#pragma once

#include <QIODevice>
#include <memory>

#include "platform/files/FileHandle.h"

/// Videos that the engine does not play itself, by way of FFmpeg's programs.
namespace platform {

/// A part of the video, both in seconds, as a WebM film of its own (VP8 and Vorbis) that begins at 0. Empty
/// when FFmpeg reads no video in the file, or none from there on.
std::unique_ptr<QIODevice> convertedVideo(const FileHandle& file, double from, double length);

/// FFmpeg's description of the video as JSON, such as `{"streams": [{"codec_type": "video"}, {"codec_type":
/// "audio"}], "format": {"duration": "6.000000"}}`; `{}` when there is none.
std::unique_ptr<QIODevice> videoDescription(const FileHandle& file);

}  // namespace platform
