#include <gtest/gtest.h>

#include "platform/base/Resources.h"
#include "src/resources/ResourceTable.h"

namespace {

/// Bookmarks bear texts of the program.
class ProgramTexts : public testing::Environment {
    void SetUp() override { platform::SetResources(kalyxo::ProgramResources()); }
};

const auto* const kProgramTexts = testing::AddGlobalTestEnvironment(new ProgramTexts);

}  // namespace
