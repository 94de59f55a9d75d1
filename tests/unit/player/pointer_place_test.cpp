// Where the pointer is, what covers it there, and what a screen grab around it shows.

#include "player/pointer_place.h"

#include "unit/player/script_player.h"

#include <gtest/gtest.h>

namespace coinlet::player {
namespace {

class NobodyReads : public ScriptReader {
public:
    void RunNextLine() override { FAIL() << "no dialog is opened here"; }
    void ServeInterrupts() override {}
};

class PointerPlaceTest : public testing::Test {
protected:
    template <class T>
    T& Find(std::string_view name) {
        return dynamic_cast<T&>(*main_.Find(name));
    }
    Form& StartedMain() {
        life_.program->Start();
        return *life_.platform.FindForm("Main");
    }
    bool IsOver(const Control& control) const { return life_.platform.IsPointerOver(control); }

    test::BlockFonts fonts_;
    const test::NoCodecs codecs_{};
    const Libraries libraries_{fonts_, codecs_, [](const Services& services) {
                                   return std::make_unique<test::EveryControlProgram>(services);
                               }};
    NobodyReads reader_;
    test::TemporaryFolder folder_;
    World world_{Places(folder_.Path(), folder_.Path(), folder_.Path()), {}, {}, {}, {}};
    Life life_{reader_, world_, libraries_};
    Form& main_ = StartedMain();
    PictureBox& pic_ = Find<PictureBox>("Pic");      // 20 by 10 pixels at 200, 0
    PictureBox& cover_ = Find<PictureBox>("Cover");  // 10 by 10 pixels at 210, 0, hidden
    PointerPlace& pointer_ = life_.platform.pointer;
};

TEST_F(PointerPlaceTest, IsOverWhatItWasPutOn) {
    EXPECT_FALSE(IsOver(pic_));
    pointer_.PutOn(pic_, 15, 5);
    EXPECT_TRUE(IsOver(pic_));
    EXPECT_FALSE(IsOver(cover_));
    pointer_.PutOn(pic_, 20, 5);
    EXPECT_FALSE(IsOver(pic_)) << "20 is the first column outside";
    pointer_.PutAway();
    EXPECT_FALSE(IsOver(pic_));
}

TEST_F(PointerPlaceTest, IsNotOverWhatIsCoveredOrHidden) {
    cover_.Visible = true;
    pointer_.PutOn(pic_, 15, 5);
    EXPECT_FALSE(IsOver(pic_));
    EXPECT_TRUE(IsOver(cover_));
    pointer_.PutOn(pic_, 5, 5);
    EXPECT_TRUE(IsOver(pic_));
    pic_.Visible = false;
    EXPECT_FALSE(IsOver(pic_));
}

TEST_F(PointerPlaceTest, OutlinesCoverNothing) {
    auto& band = Find<Shape>("Band");
    band.Move(0, 0, 20, 10);
    pointer_.PutOn(pic_, 5, 5);
    EXPECT_TRUE(IsOver(pic_));
    EXPECT_FALSE(IsOver(band));
}

TEST_F(PointerPlaceTest, CountsThePlacesOfContainers) {
    auto& first = dynamic_cast<OptionButton&>(*main_.Find("Option", 0));
    auto& frame = Find<Frame>("Frame1");
    // The option lies one pixel from the frame's corner.
    pointer_.PutOn(frame, 1, 1);
    EXPECT_TRUE(IsOver(first));
    EXPECT_FALSE(IsOver(frame));
    pointer_.PutOn(frame, 0, 1);
    EXPECT_TRUE(IsOver(frame));
    pointer_.PutOn(first, -1, 0);
    EXPECT_TRUE(IsOver(frame));
}

TEST_F(PointerPlaceTest, MeasuresInTheUnitsOfThePicture) {
    pic_.surface.SetScaleMode(twipScale);
    pointer_.PutOn(pic_, 45, 30);
    EXPECT_EQ(pointer_.PixelX(), 3);
    EXPECT_EQ(pointer_.PixelY(), 2);
}

TEST_F(PointerPlaceTest, LetsGoOfAFormThatHasGone) {
    {
        test::AskForm dialog(life_.services.ForForms());
        pointer_.PutOn(dialog.OkKnop, 1, 1);
    }
    EXPECT_EQ(pointer_.PlacedOn(), nullptr);
    EXPECT_FALSE(IsOver(pic_));
}

TEST_F(PointerPlaceTest, AGrabShowsThePictureUnderItAndWhiteBeyond) {
    pic_.surface.SetBackColor(RGB(9, 9, 9));
    pic_.surface.PSet(0, 0, RGB(1, 2, 3));
    pointer_.PutOn(pic_, 1, 1);
    int x = -1, y = -1;
    life_.grab.GetCursorPos(&x, &y);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 1);
    const Image around = life_.grab.Grab({x - 2, y - 2, x + 2, y + 2});
    ASSERT_EQ(around.Width(), 4);
    ASSERT_EQ(around.Height(), 4);
    EXPECT_EQ(around.At(0, 3), white);
    EXPECT_EQ(around.At(1, 1), RGB(1, 2, 3));
    EXPECT_EQ(around.At(2, 2), RGB(9, 9, 9));

    pointer_.PutAway();
    EXPECT_EQ(life_.grab.Grab({0, 0, 1, 1}).At(0, 0), white);
    EXPECT_TRUE(life_.grab.Grab({3, 3, 3, 5}).Empty());
}

}  // namespace
}  // namespace coinlet::player
