#include "launch/launch_step.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct StepCase {
    LaunchStep Step;
    const char* Shown;
};

constexpr StepCase kStepCases[] = {
    {LaunchStep::NotBegun, "EC00000"},
    {LaunchStep::Executable, "EC00020"},
    {LaunchStep::Switches, "EC00040"},
    {LaunchStep::Memory, "EC00050"},
    {LaunchStep::Resolution, "EC00060"},
    {LaunchStep::BitDepth, "EC00070"},
    {LaunchStep::PlayerScript, "EC00080"},
    {LaunchStep::DedicatedServer, "EC00090"},
    {LaunchStep::Mouse, "EC00100"},
    {LaunchStep::Drawing, "EC00110"},
    {LaunchStep::GraphicsDriver, "EC00120"},
    {LaunchStep::Server, "EC00130"},
    {LaunchStep::GameSpyServer, "EC00140"},
    {LaunchStep::StartMap, "EC00190"},
    {LaunchStep::LaunchScript, "EC00205"},
    {LaunchStep::LaunchBatch, "EC00230"},
    {LaunchStep::LaunchBatchWritten, "EC00240"},
    {LaunchStep::GameSpyGames, "EC00250"},
    {LaunchStep::GameSpyFiles, "EC00294"},
    {LaunchStep::GameSpyRegistry, "EC00404"},
    {LaunchStep::GameSpyStart, "EC00410"},
    {LaunchStep::GameSpyStarted, "EC00460"},
    {LaunchStep::View, "EC00470"},
    {LaunchStep::Clipboard, "EC00480"},
};

TEST(ShownStep, IsItsNumberInFiveDigits) {
    for (const StepCase& expected : kStepCases) {
        EXPECT_EQ(ShownStep(expected.Step), expected.Shown);
    }
}

}  // namespace
}  // namespace lv
