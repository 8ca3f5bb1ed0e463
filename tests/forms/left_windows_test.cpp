#include "tests/forms/left_windows.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/weakref.h>

#include <string>
#include <vector>

namespace lv {
namespace {

std::vector<std::string> FoundAtTheEnd() {
    ::testing::TestPartResultArray found;
    {
        const ::testing::ScopedFakeTestPartResultReporter reporter(&found);
        LeftWindows().OnTestEnd(*::testing::UnitTest::GetInstance()->current_test_info());
    }
    std::vector<std::string> messages;
    for (int i = 0; i < found.size(); ++i) {
        const std::string message = found.GetTestPartResult(i).message();
        messages.push_back(message.substr(message.rfind('\n') + 1));
    }
    return messages;
}

TEST(LeftWindows, AreToldOfAndDestroyed) {
    const wxWeakRef<wxFrame> left = new wxFrame(nullptr, wxID_ANY, "The title");
    left->SetName("Left_Frm");
    EXPECT_EQ(FoundAtTheEnd(), (std::vector<std::string>{"left behind: Left_Frm \"The title\""}));
    EXPECT_EQ(left.get(), nullptr);
    EXPECT_EQ(FoundAtTheEnd(), std::vector<std::string>());
}

TEST(LeftWindows, ThoseThatAreOnTheirWayOutAreNone) {
    auto* const leaving = new wxFrame(nullptr, wxID_ANY, "");
    leaving->Destroy();
    EXPECT_EQ(FoundAtTheEnd(), std::vector<std::string>());
}

}  // namespace
}  // namespace lv
