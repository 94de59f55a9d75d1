// The dialogs that change colours show what they do while they do it: the change sweeps over the picture, a
// row or a column at a time.
#include "filters/color_change.h"
#include "filters/remove_form.h"
#include "support/watching_screen.h"
#include "support/world.h"

#include <functional>
#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

enum class Way { Down, ToTheRight };
enum class Meanwhile { EventsAreServed, NothingIsServed };

class SweepingChanges : public testing::Test, protected World {
protected:
    SweepingChanges() { main.Pic.surface.SetBackColor(before); }

    /// A change of the whole picture: at each refresh it has gone on by one row or column, and events are
    /// served after the refresh. `more`: refreshes after the last row.
    void ExpectSweep(Surface& picture, Way way, Meanwhile meanwhile, const std::function<void()>& change,
                     int more = 0) {
        const int servedBefore = platform.served;
        const WatchingScreen screen(picture, [&](int place) {
            const int waits = meanwhile == Meanwhile::EventsAreServed ? place : 0;
            EXPECT_EQ(platform.served - servedBefore, waits);
            if (place < canvasSide) {
                EXPECT_NE(At(picture, way, place), before) << place;
            }
            if (place + 1 < canvasSide) {
                EXPECT_EQ(At(picture, way, place + 1), before) << place;
            }
        });
        change();
        EXPECT_EQ(screen.Refreshes(), canvasSide + more);
    }

    static constexpr Colour before = RGB(10, 20, 30);

private:
    static Colour At(const Surface& picture, Way way, int place) {
        constexpr int middle = canvasSide / 2;
        return way == Way::Down ? picture.Point(middle, place) : picture.Point(place, middle);
    }
};

class SweepOfRemoval : public SweepingChanges {
protected:
    SweepOfRemoval() { form.Form_Load(); }
    void ExpectSweepDown(Meanwhile meanwhile, const std::function<void()>& change, int more = 0) {
        ExpectSweep(form.Pic.surface, Way::Down, meanwhile, change, more);
    }

    RemoveForm form{context};
};

TEST_F(SweepOfRemoval, OneColour) {
    ExpectSweepDown(Meanwhile::NothingIsServed, [this] { form.Pic.MouseDown(leftButton, 0, 7, 7); });
}

TEST_F(SweepOfRemoval, OneChannel) {
    for (int channel = 0; channel < 3; ++channel) {
        form.ResetKnop.Click();
        ExpectSweepDown(Meanwhile::NothingIsServed, [&] { form.RGBKnop[channel].Click(); });
    }
}

TEST_F(SweepOfRemoval, AllButGray) {
    ExpectSweepDown(Meanwhile::EventsAreServed, [this] { form.GrayKnop.Click(); });
}

TEST_F(SweepOfRemoval, AllButBlack) {
    platform.texts.emplace_back("40");
    ExpectSweepDown(
        Meanwhile::EventsAreServed, [this] { form.BWKnop.Click(); }, 1);
}

class SweepOfReplacement : public SweepingChanges {
protected:
    SweepOfReplacement() { form.Form_Load(); }
    void ExpectSweepOf(int palette, Way way) {
        form.Combo1.SetListIndex(palette);
        ExpectSweep(form.Pic.surface, way, Meanwhile::EventsAreServed, [this] { form.StartKnop.Click(); });
    }

    ColorChange form{context};
};

TEST_F(SweepOfReplacement, ByAPalette) {
    ExpectSweepOf(1, Way::ToTheRight);
}

TEST_F(SweepOfReplacement, ByAMetal) {
    ExpectSweepOf(10, Way::Down);
}

}  // namespace
}  // namespace coinlet::test
