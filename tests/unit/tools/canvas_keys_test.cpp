// The canvas's keys where a script has no way to them: the pointer on the screen, and keys that come up in
// another window.

#include "tools/canvas_keys.h"

#include "support/world.h"
#include "tools/gesture_engine.h"

#include <gtest/gtest.h>
#include <vector>

namespace coinlet {
namespace {

class CanvasKeysTest : public testing::Test, protected test::World {
protected:
    CanvasKeysTest() {
        gestures.Add({.firstCode = 1,
                      .lastCode = 1,
                      .press = [this](GesturePoint) { ++presses; },
                      .release = [this](GesturePoint) { ++releases; }});
        session.ToolCode = 1;
        platform.ShowMain(main);
        main.Pic.SetFocus();
    }

    int presses = 0, releases = 0;
    GestureEngine gestures{context};
    CanvasKeys keys{context, gestures};
};

TEST_F(CanvasKeysTest, ThePointerOnTheScreenComesAlong) {
    main.KeyDown(nullptr, keyRight, 0);
    EXPECT_EQ(platform.pointerOver, &main.Pic);
}

TEST_F(CanvasKeysTest, OneKeyThatComesUpEndsOneStroke) {
    main.KeyDown(nullptr, keySpace, 0);
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(main.PointerHeld());
    main.KeyUp(nullptr, keyF10, 0);
    EXPECT_EQ(releases, 0);
    main.KeyUp(nullptr, keySpace, 0);
    EXPECT_EQ(releases, 1);
    EXPECT_FALSE(main.PointerHeld());
    // Should it come up a second time, nothing is left to be ended.
    main.KeyUp(nullptr, keySpace, 0);
    EXPECT_EQ(releases, 1);
}

TEST_F(CanvasKeysTest, ACanvasSlidAsideHasNoPlaceForThePointer) {
    main.Pic.SetWidth(0);
    main.KeyDown(nullptr, keyRight, 0);
    EXPECT_EQ(platform.pointerOver, nullptr);
    main.Pic.SetWidth(100 * 15);
    for (int i = 0; i < 12; ++i)
        main.KeyDown(nullptr, keyRight, shiftHeld);
    EXPECT_EQ(gestures.Pointer().x, 99);
}

}  // namespace
}  // namespace coinlet
