#pragma once

#include "designers/arc_form.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <vector>

namespace coinlet::test {

/// The arc designer, open over a white canvas, with a pen of one pixel; and the user's doings in it.
class ArcWorld : public testing::Test, protected World {
protected:
    ArcWorld() {
        platform.ShowMain(form);
        form.HScroll1.SetValue(1);
    }

    Surface& Picture() { return form.Pic.surface; }
    Image Seen() { return Picture().Image(); }
    Colour At(int x, int y) { return Picture().Point(x, y); }
    /// A picture of the canvas's size to compare with, white.
    Surface Blank() const { return {fonts, canvasSide, canvasSide}; }

    void Choose(int mode) { form.Option1[mode].SetValue(true); }
    void Press(float x, float y, int button = leftButton) { form.Pic.MouseDown(button, 0, x, y); }
    void Move(float x, float y, int button = 0) { form.Pic.MouseMove(button, 0, x, y); }
    void Release(float x, float y, int button = leftButton) { form.Pic.MouseUp(button, 0, x, y); }
    void Click(float x, float y, int button = leftButton) {
        Move(x, y);
        Press(x, y, button);
        Release(x, y, button);
    }
    /// Noise that any drawing changes, and any that is left behind shows in.
    void FillCanvasWithNoise() {
        std::uint32_t state = 1;
        Bitmap noise(canvasSide, canvasSide);
        for (Pixel& pixel : noise.Pixels()) {
            state = state * 1664525 + 1013904223;
            pixel = spareByte | state >> 8;
        }
        main.Pic.surface.SetPicture(Image(std::move(noise)));
        form.ResetKnop.Click();
    }

    ArcForm form{context};
};

}  // namespace coinlet::test
