// Copying the canvas, with a clipboard that takes it and one that doesn't.
#include "store/clipboard_copy.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

TEST(ClipboardCopy, TellsTheSameIfAnotherProgramHoldsTheClipboard) {
    World world;  // its clipboard loses everything
    const ClipboardCopy copy(world.context);
    world.main.BewerkenCopy.Click();
    ASSERT_EQ(world.platform.messages.size(), 1U);
    EXPECT_EQ(world.platform.messages.front().prompt, "Copy Image to Clipboard...");
    EXPECT_EQ(world.platform.messages.front().title, "Coinlet Designer");
    EXPECT_EQ(world.platform.messages.front().buttons, MessageButtons::Ok);
    EXPECT_TRUE(world.clipboard.GetImage().Empty());
}

}  // namespace
}  // namespace coinlet::test
