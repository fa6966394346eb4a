#include <QWidget>
#include <memory>

#include "controls/molctrl/MoleculeController.h"
#include "controls/zoom/MoleculeZoom.h"
#include "tests/controls/RecordingSite.h"

namespace controls {
namespace {

using platform::InvokeKind;

TEST(MoleculeController, TellsItsVersionAsAProperty) {
    RecordingSite site;
    const auto control = molctrl::createMoleculeController(site, nullptr);
    EXPECT_EQ(property<std::string>(*control, 1), "1.0.40");
    EXPECT_FALSE(invoke(*control, 1, InvokeKind::method));
    EXPECT_FALSE(invoke(*control, 2, InvokeKind::propertyGet));
    ASSERT_EQ(control->operations().size(), 1U);
    EXPECT_EQ(control->operations()[0].name, "Version");
}

TEST(MoleculeZoom, TellsItsVersionByAMethod) {
    RecordingSite site;
    const auto control = zoom::createMoleculeZoom(site, nullptr);
    EXPECT_EQ(ask<std::string>(*control, 1, InvokeKind::method), "1.0.40");
    EXPECT_FALSE(invoke(*control, 1, InvokeKind::propertyGet));
    EXPECT_FALSE(invoke(*control, 1, InvokeKind::method, std::int16_t{1}));
    EXPECT_EQ(control->operations()[0].name, "GetVersion");
}

TEST(MoleculeZoom, SurvivesItsHostsWindow) {
    RecordingSite site;
    auto window = std::make_unique<QWidget>();
    const auto control = zoom::createMoleculeZoom(site, window.get());
    EXPECT_EQ(control->widget().parentWidget(), window.get());
    control->widget().resize(120, 30);
    control->widget().grab();
    window.reset();
}

}  // namespace
}  // namespace controls
