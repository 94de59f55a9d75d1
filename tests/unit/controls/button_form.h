#pragma once

#include "controls/text_box.h"
#include "controls/vista_button.h"
#include "support/test_platform.h"

namespace coinlet::test {

/// A form with a push button and something else that takes the focus.
struct ButtonForm : Form {
    explicit ButtonForm(FormServices services) : Form(services, "Sample") {
        Text1.Move(0, 600, 600, 300);
        Resize(70, 24);
    }
    /// In pixels.
    void Resize(int width, int height) {
        OkKnop.SetWidth(width * twipsPerPixel);
        OkKnop.SetHeight(height * twipsPerPixel);
    }
    /// Brings the new button into a state as a user or the program would.
    void Enter(ButtonState state) {
        switch (state) {
            case ButtonState::Normal:
                break;
            case ButtonState::Hover:
                OkKnop.PointerMoved(0, 0, 0, 0);
                break;
            case ButtonState::Pressed:
                OkKnop.PointerPressed(1, 0, 0, 0);
                break;
            case ButtonState::Focused:
                OkKnop.SetFocus();
                break;
            case ButtonState::Disabled:
                OkKnop.SetEnabled(false);
                break;
        }
    }

    VistaButton OkKnop{*this, "OkKnop"};
    TextBox Text1{*this, "Text1"};
};

}  // namespace coinlet::test
