#include "platform/framework/Shell.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include "platform/machine/Machine.h"

namespace platform {

namespace {

/// A link to the file whose name ends in ".txt": the desktop chooses the program by that.
QString asTextFile(const QString& path) {
    static const QTemporaryDir links;
    const QString link = links.filePath(QFileInfo(path).fileName() + QStringLiteral(".txt"));
    QFile::remove(link);
    return links.isValid() && QFile::link(path, link) ? link : path;
}

void openInEditor(std::string_view dosPath) {
    const auto native = machine().files().nativePath(dosPath);
    if (!native) return;
    const QString path = QString::fromStdString(native->string());
    QDesktopServices::openUrl(QUrl::fromLocalFile(asTextFile(path)));
}

}  // namespace

void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                  std::string_view folder) {
    machine().trace().record(
        TraceShell{std::string(verb), std::string(file), std::string(parameters), std::string(folder)});
    if (!machine().virtualTime() && verb == "open" && file == "notepad.exe") openInEditor(parameters);
}

}  // namespace platform
