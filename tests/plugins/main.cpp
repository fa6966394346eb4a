#include <gtest/gtest.h>

#include <QApplication>

#include "platform/automation/BrowserProcess.h"
#include "platform/automation/PluginTypes.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    platform::prepareProcess();
    platform::PluginTypes::instance().add("mol", ":/plugins/molecule.html");
    platform::PluginTypes::instance().add("webm", ":/plugins/video.html");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
