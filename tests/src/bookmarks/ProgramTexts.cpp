#include <gtest/gtest.h>

#include <memory>

#include "platform/base/Resources.h"
#include "src/resources/ResourceTable.h"

namespace {

/// Bookmarks bear texts of the program.
class ProgramTexts : public testing::Environment {
    void SetUp() override { platform::SetResources(kalyxo::ProgramResources()); }
};

const auto* const programTexts =
    testing::AddGlobalTestEnvironment(std::make_unique<ProgramTexts>().release());

}  // namespace
