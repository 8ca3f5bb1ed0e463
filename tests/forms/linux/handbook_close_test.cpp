// The window manager asks a window to close; GTK's side of the toolkit may turn a deaf ear to it beside a dialog.

#include <gtest/gtest.h>

#include "foundation/question_box.h"
#include "foundation/window_services.h"
#include "launcher/forms/launcher_user.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/real_handbook.h"

namespace lv {
namespace {

TEST(HandbookBesideADialog, IsClosedAsTheUserClosesAWindow) {
    MemoryPlatform system;
    system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
    BookFiles files;
    LauncherUser user{files};
    lv::Run run{system.Services, user};
    user.SetRun(run);
    for (const bool byEscape : {false, true}) {
        WhenModal([&run, byEscape] {
            OpenHelpFile(run);
            ASSERT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsShownOnScreen(); }));
            BringForward(Book());
            byEscape ? PressKey(WXK_ESCAPE) : PressKey(WXK_F4, wxMOD_ALT);
            EXPECT_TRUE(SettleUntil([] { return Book() == nullptr; })) << byEscape;
            BringForward(dynamic_cast<wxTopLevelWindow*>(Find("QuestionBox_Frm")));
            PressKey(WXK_RETURN);
        });
        AskUser(run, "A message", "Text");
    }
}

}  // namespace
}  // namespace lv
