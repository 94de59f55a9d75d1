// Two programs in one folder export at the same time, with one name for their scratch files: every export is
// there with its own picture, or its user knows that it failed.
#include "store/save_form.h"
#include "support/world.h"

#include <unistd.h>

#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

namespace coinlet::test {
namespace {

class TwoExports : public testing::Test, protected World {
protected:
    /// Exports canvases of that colour. The number of those that are neither there nor were told to have
    /// failed.
    int LostExports(const std::string& user, Colour colour, int exports) {
        session.SaveMode = "JPG";
        main.Pic.surface.Resize(8, 8);
        main.Pic.surface.Line(0, 0, 7, 7, colour, Box::Filled);
        // The plain codec's file is that of the bitmap, behind the quality.
        const Bytes bitmap = EncodeBmp(main.Pic.surface.Image()).value();
        const std::string expected = "d" + std::string(bitmap.begin(), bitmap.end());
        int lost = 0;
        for (int i = 0; i < exports; ++i) {
            const std::string name = user + std::to_string(i);
            platform.messages.clear();
            SaveForm dialog(context);
            platform.doings.emplace_back([&] {
                dialog.Text1.SetText(name);
                dialog.SaveKnop.PointerClicked();
                dialog.Unload();
            });
            platform.ShowModal(dialog);
            const std::string found = folder.Read("Pictures/" + name + ".jpg");
            const bool told = !platform.messages.empty();
            if (told ? found != "(no file)" : found != expected) ++lost;
        }
        return lost;
    }
};

TEST_F(TwoExports, LoseNoneInSilence) {
    constexpr int exports = 60;
    const pid_t other = ::fork();
    if (other == 0) ::_exit(LostExports("other", RGB(200, 30, 40), exports));
    EXPECT_EQ(LostExports("one", RGB(10, 120, 130), exports), 0);
    int status = -1;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST_F(TwoExports, ALinkInThePlaceOfTheScratchFileIsNotWrittenThrough) {
    folder.Write("precious.bmp", "precious");
    fs::create_symlink(folder / "precious.bmp", folder / "app/mydummy.bmp");
    EXPECT_EQ(LostExports("one", RGB(10, 120, 130), 1), 0);
    EXPECT_EQ(folder.Read("precious.bmp"), "precious");
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "app/mydummy.bmp")));
}

}  // namespace
}  // namespace coinlet::test
