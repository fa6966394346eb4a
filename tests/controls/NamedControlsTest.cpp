#include <QWidget>
#include <memory>

#include "controls/zoom/MoleculeZoom.h"
#include "tests/controls/RecordingSite.h"

namespace controls {
namespace {

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
