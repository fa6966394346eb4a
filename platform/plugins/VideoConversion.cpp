#include "platform/plugins/VideoConversion.h"

#include <QStringList>
#include <algorithm>
#include <utility>

#include "platform/plugins/ConversionLimits.h"
#include "platform/plugins/ProcessStream.h"

namespace platform {

namespace {

/// The file that the program is given as its standard input, of these kinds only: others, such as playlists,
/// would open further files.
QStringList trustedInput() {
    return {QStringLiteral("-max_pixels"),
            QString::number(conversion::maxPixels),
            QStringLiteral("-threads"),
            QString::number(conversion::threads),
            QStringLiteral("-protocol_whitelist"),
            QStringLiteral("file,pipe"),
            QStringLiteral("-format_whitelist"),
            QStringLiteral("avi,mov,mp4,mpeg,mpegvideo,mpegts,matroska,webm,ogg,asf,flv"),
            QStringLiteral("-i"),
            QStringLiteral("file:/dev/stdin")};
}

/// Pictures of square pixels, as browsers take them, and stereo sound where there is any. Gaps between
/// pictures are filled: the engine would leave out all that follows one, up to the next key frame. The sound
/// is Vorbis: FFmpeg 7.1 lets Opus begin some milliseconds before 0, and the engine stops there.
QStringList webm() {
    return QStringLiteral(
               "-map 0:v:0 -map 0:a:0? -vf "
               "fps='min(source_fps,60)':start_time=0,"
               "scale='min(trunc(iw*sar/2)*2,%1)':'min(trunc(ih/2)*2,%1)',setsar=1 "
               "-pix_fmt yuv420p "
               "-c:v libvpx -threads %2 -deadline realtime -cpu-used 6 -auto-alt-ref 0 -g 30 -b:v 2M -crf 8 "
               "-c:a libvorbis -q:a 3 -ac 2 -ar 48000 -f webm pipe:1")
        .arg(conversion::maxSide)
        .arg(conversion::threads)
        .split(u' ');
}

QString seconds(double number) { return QString::number(number, 'f', 3); }

}  // namespace

std::unique_ptr<QIODevice> convertedVideo(std::unique_ptr<QFile> file, double from, double length) {
    const QStringList part = {QStringLiteral("-nostdin"),
                              QStringLiteral("-v"),
                              QStringLiteral("error"),
                              QStringLiteral("-ss"),
                              seconds(std::min(from, conversion::maxStartSeconds)),
                              QStringLiteral("-t"),
                              seconds(std::min(length, conversion::maxPartSeconds))};
    return std::make_unique<ProcessStream>(QStringLiteral("ffmpeg"), part + trustedInput() + webm(),
                                           std::move(file));
}

std::unique_ptr<QIODevice> videoDescription(std::unique_ptr<QFile> file) {
    const QStringList arguments = {QStringLiteral("-v"),
                                   QStringLiteral("error"),
                                   QStringLiteral("-of"),
                                   QStringLiteral("json"),
                                   QStringLiteral("-show_entries"),
                                   QStringLiteral("format=duration:stream=codec_type")};
    return std::make_unique<ProcessStream>(QStringLiteral("ffprobe"), arguments + trustedInput(),
                                           std::move(file));
}

}  // namespace platform
