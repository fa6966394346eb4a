#pragma once

#include <QFile>
#include <QIODevice>
#include <memory>

/// Videos that the engine does not play itself, by way of FFmpeg's programs.
namespace platform {

/// A part of the video, both in seconds, as a WebM film of its own (VP8 and Vorbis) that begins at 0. Empty
/// when FFmpeg reads no video in the file, or none from there on, or that would cost too much.
std::unique_ptr<QIODevice> convertedVideo(std::unique_ptr<QFile> file, double from, double length);

/// FFmpeg's description of the video as JSON, such as `{"streams": [{"codec_type": "video"}, {"codec_type":
/// "audio"}], "format": {"duration": "6.000000"}}`; `{}` when there is none.
std::unique_ptr<QIODevice> videoDescription(std::unique_ptr<QFile> file);

}  // namespace platform
