/// render-artwork MANIFEST FOLDER: draws every picture of the manifest into the folder.
/// Exit status: 0 all drawn, 1 a picture failed, 2 wrong arguments or manifest.

#include <QGuiApplication>
#include <QTextStream>

#include "tools/artwork/Manifest.h"
#include "tools/artwork/PictureWriter.h"
#include "tools/artwork/SvgComposer.h"

namespace {

void report(const platform::Failure& failure) {
    QTextStream(stderr) << "render-artwork: " << QString::fromStdString(failure.message) << '\n';
}

platform::Result<void> render(const artwork::Manifest& manifest, const artwork::Picture& picture,
                              const QString& folder) {
    const artwork::SvgComposer composer(manifest.palette, picture.colours);
    const auto svg = composer.compose(manifest.folder + "/" + picture.source);
    if (!svg) return svg.failure();
    return artwork::writePicture(picture, *svg, folder);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // fonts are needed, a display is not
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: render-artwork MANIFEST FOLDER\n";
        return 2;
    }
    const auto manifest = artwork::readManifest(arguments[1]);
    if (!manifest) {
        report(manifest.failure());
        return 2;
    }
    int status = 0;
    const auto draw = [&](const artwork::Picture& picture) {
        const auto rendered = render(*manifest, picture, arguments[2]);
        if (rendered) return;
        report(rendered.failure());
        status = 1;
    };
    for (const artwork::Picture& picture : manifest->pictures) {
        draw(picture);
        if (!picture.once) draw(artwork::sharper(picture));
    }
    return status;
}
