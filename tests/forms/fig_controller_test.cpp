// The picture of a controller, from a file that anybody may have drawn.

#include "foundry/editor/controllers.h"
#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

constexpr const KindOfGame& kQuake = kGames[0];
constexpr int kPlain = 0;
constexpr int kRuns8 = 1;
constexpr int kRuns4 = 2;

Text Bytes(std::uint32_t number, int count) {
    Text bytes;
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> (8 * i)));
    }
    return bytes;
}

/// A Windows BMP of 4 by 2 pixels with a palette, its pixels as the compression has them.
Text Bitmap(int bits, int compression, TextView pixels) {
    const int colors = 1 << bits;
    const auto start = static_cast<std::uint32_t>(14 + 40 + 4 * colors);
    Text file = "BM" + Bytes(start + static_cast<std::uint32_t>(pixels.size()), 4) + Bytes(0, 4) + Bytes(start, 4);
    file += Bytes(40, 4) + Bytes(4, 4) + Bytes(2, 4) + Bytes(1, 2) + Bytes(static_cast<std::uint32_t>(bits), 2);
    file += Bytes(static_cast<std::uint32_t>(compression), 4) + Bytes(static_cast<std::uint32_t>(pixels.size()), 4);
    file += Bytes(0, 4) + Bytes(0, 4) + Bytes(static_cast<std::uint32_t>(colors), 4) + Bytes(0, 4);
    for (int color = 0; color < colors; ++color) {
        file += Bytes(static_cast<std::uint32_t>(color) * 0x010101U, 4);
    }
    return file + Text(pixels);
}

class ControllerPicture : public FigForm_ {
  protected:
    /// Picks the first controller, whose picture is the file; whether the window takes it for missing.
    bool IsRefused(const Text& file) {
        Use(kQuake, "");
        run.AppDirectory = "C:\\LV3D";
        system.Disk.AddFile("C:\\LV3D\\gravispad.bmp", file);
        Save(run, "ShowMessage", "WackAssController_Msg", 0);
        bool refused = false;
        Edit([&] {
            TurnBindings(BindingsPage::Standard);
            ClickOn(Find("JoyToggle_Cmd(0)"));
            Fig_Frm& model = form->Model();
            model.Device_Cbo.ListIndex = 1;
            Device_Cbo_Click(model);
            form->ShowState();
            Settle(300);
            refused = model.DevicePicture.empty();
        });
        return refused;
    }
};

TEST_F(ControllerPicture, OfPlainPixelsIsShown) {
    EXPECT_FALSE(IsRefused(Bitmap(8, kPlain, Text("\1\2\3\4\4\3\2\1", 8))));
}

TEST_F(ControllerPicture, OfRunsOfEightBitsCountsAsMissing) {
    EXPECT_TRUE(IsRefused(Bitmap(8, kRuns8, Text("\4\1\0\0\4\2\0\1", 8))));
}

TEST_F(ControllerPicture, OfRunsOfFourBitsCountsAsMissing) {
    EXPECT_TRUE(IsRefused(Bitmap(4, kRuns4, Text("\4\x12\0\0\4\x21\0\1", 8))));
}

TEST_F(ControllerPicture, OfRunsThatNeverEndCostsNoTime) {
    EXPECT_TRUE(IsRefused(Bitmap(8, kRuns8, Text(1'000'000, '\0'))));
}

}  // namespace
}  // namespace lv
