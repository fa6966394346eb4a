#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "platform/machine/Machine.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/ClipboardWatch.h"
#include "tools/drive/script/Act.h"

/// What is on the clipboard, and what the program puts there.
namespace drive {

namespace {

const QMimeData* held() { return QGuiApplication::clipboard()->mimeData(); }

/// The clipboard's formats under the platform's names; others under their own.
std::vector<std::string> formatNames() {
    std::vector<std::string> names;
    if (held() == nullptr) return names;
    if (held()->hasText()) names.emplace_back("CF_TEXT");
    if (held()->hasImage()) names.emplace_back("CF_BITMAP");
    for (const QString& format : held()->formats()) {
        if (!format.startsWith("text/plain") && !format.contains("image"))
            names.push_back(format.toStdString());
    }
    return names;
}

void tellClipboard(Act& act) {
    const QImage picture = held() == nullptr ? QImage() : qvariant_cast<QImage>(held()->imageData());
    act.set("formats", formatNames());
    act.set("text", held() == nullptr ? std::string() : held()->text().toStdString());
    act.set("width", picture.width());
    act.set("height", picture.height());
}

void clipboard(Act& act, Program&) { act.whenIdle(tellClipboard); }

constexpr Command kClipboardCommands[] = {{"clipboard", 0, 0, clipboard}};

}  // namespace

std::span<const Command> clipboardCommands() { return kClipboardCommands; }

void watchClipboard(QObject& watcher) {
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &watcher,
                     [] { platform::machine().trace().record(platform::TraceClipboard{formatNames()}); });
}

}  // namespace drive
