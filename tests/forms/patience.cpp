#include "tests/forms/patience.h"

#include <wx/dialog.h>
#include <wx/time.h>

#include "tests/forms/form_driver.h"
#include "tests/forms/form_system.h"

namespace lv {

namespace {

constexpr int kLookEvery = 500;

wxMilliClock_t& LastSign() {
    static wxMilliClock_t at = wxGetLocalTimeMillis();
    return at;
}

}  // namespace

void SignOfLife() {
    LastSign() = wxGetLocalTimeMillis();
}

Patience::Patience(int milliseconds) : watch_(milliseconds) {}

void Patience::OnTestStart(const ::testing::TestInfo&) {
    SignOfLife();
    watch_.Start(kLookEvery);
}

void Patience::OnTestEnd(const ::testing::TestInfo&) {
    watch_.Stop();
    const int waiting = ForgetModals();
    EXPECT_EQ(waiting, 0) << "modal windows that were expected did not come";
}

void Patience::Watch::Notify() {
    if (wxGetLocalTimeMillis() - LastSign() < Limit) {
        return;
    }
    if (const std::string left = LeaveOpenOne(); !left.empty()) {
        ADD_FAILURE() << "nobody answered " << left;
        SignOfLife();
    }
}

}  // namespace lv
