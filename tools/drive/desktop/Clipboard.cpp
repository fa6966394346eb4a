#include "tools/drive/desktop/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/machine/Machine.h"

namespace drive {

std::vector<std::string> clipboardFormats() {
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    std::vector<std::string> names;
    if (held == nullptr) return names;
    if (held->hasText()) names.emplace_back("CF_TEXT");
    if (held->hasImage()) names.emplace_back("CF_BITMAP");
    for (const QString& format : held->formats()) {
        if (!format.startsWith("text/plain") && !format.contains("image"))
            names.push_back(format.toStdString());
    }
    return names;
}

void watchClipboard(QObject& watcher) {
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &watcher, [] {
        platform::machine().trace().record(platform::TraceClipboard{clipboardFormats()});
    });
}

}  // namespace drive
