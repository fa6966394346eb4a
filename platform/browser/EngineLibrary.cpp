#include "platform/browser/EngineLibrary.h"

#include <dlfcn.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <utility>

namespace platform {

namespace {

QString libraryFile() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/kalyxo/kalyxo-engine.so");
}

bool processIsInstalled() {
    const QString given = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    if (!given.isEmpty()) return QFileInfo::exists(given);
    const QString name = QStringLiteral("/QtWebEngineProcess");
    return QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + name) ||
           QFileInfo::exists(QCoreApplication::applicationDirPath() + name);
}

/// The library stays until the end of the program, which holds code and types of it.
MakeEngineFunction loadLibrary() {
    void* const library = ::dlopen(QFile::encodeName(libraryFile()).constData(), RTLD_NOW | RTLD_NODELETE);
    void* const found = library ? ::dlsym(library, makeEngineName) : nullptr;
    if (!found) qFatal("The browser engine cannot be loaded: %s", ::dlerror());
    return reinterpret_cast<MakeEngineFunction>(found);
}

}  // namespace

bool engineIsInstalled() { return QFileInfo::exists(libraryFile()) && processIsInstalled(); }

std::unique_ptr<BrowserEngine> makeEngine(QWidget* parent, BrowserEngine::Questions questions) {
    static const MakeEngineFunction make = loadLibrary();
    return std::unique_ptr<BrowserEngine>(make(parent, std::move(questions)));
}

}  // namespace platform
