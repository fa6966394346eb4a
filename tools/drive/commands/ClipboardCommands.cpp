#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Clipboard.h"
#include "tools/drive/script/Request.h"

/// What is on the clipboard.
namespace drive {

namespace {

void tellClipboard(Request& request) {
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    const QImage picture = held == nullptr ? QImage() : qvariant_cast<QImage>(held->imageData());
    request.set("formats", clipboardFormats());
    request.set("text", held == nullptr ? std::string() : held->text().toStdString());
    request.set("width", picture.width());
    request.set("height", picture.height());
}

void clipboard(Request& request, Program&) { request.whenIdle(tellClipboard); }

constexpr Command clipboardTable[] = {{"clipboard", 0, 0, clipboard}};

}  // namespace

std::span<const Command> clipboardCommands() { return clipboardTable; }

}  // namespace drive
