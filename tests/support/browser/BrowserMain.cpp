#include <gtest/gtest.h>

#include <QApplication>

#include "platform/browser/BrowserProcess.h"
#include "platform/plugins/PluginTypes.h"

/// The main program of tests with the browser engine.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    platform::prepareProcess();
    auto& types = platform::PluginTypes::instance();
    for (const char* molecule : {"mol", "sdf", "xyz", "pdb", "cml"})
        types.add(molecule, ":/plugins/molecule.html");
    for (const char* video : {"webm", "mp4", "avi", "mov", "mpg"}) types.add(video, ":/plugins/video.html");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
