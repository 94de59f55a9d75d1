#pragma once

#include "controls/control.h"
#include "controls/timer.h"
#include "controls/vista_button_drawing.h"
#include "surface/surface.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace coinlet {

/// The program's push button: a glossy body in two parts, a one-pixel frame with cut corners, five states, a
/// picture and a caption. It draws every pixel itself.
class VistaButton : public Control {
public:
    VistaButton(Container& container, std::string_view name, int index = noIndex);

    const std::string& Caption() const { return look_.caption; }
    Colour ForeColor() const { return look_.foreColor; }
    const FontProperties& Font() const { return look_.font; }
    const Image& Picture() const { return picture_; }
    int Pictures() const { return look_.pictures; }
    bool UseMaskColor() const { return look_.useMaskColor; }
    Colour MaskColor() const { return look_.maskColor; }
    bool NoBackground() const { return look_.noBackground; }
    Colour BackColor() const { return look_.backColor; }
    int PictureOffset() const { return look_.pictureOffset; }

    // Setting any property draws the button anew.
    void SetCaption(const std::string& caption);
    void SetForeColor(Colour colour);
    void SetFont(const FontProperties& font);
    /// A strip of up to three frames side by side: normal, disabled, pressed. The empty picture takes it
    /// away.
    void SetPicture(const Image& picture);
    /// Below 0 becomes 1, above 2 becomes 2: three frames are reached only by LoadPictures.
    void SetPictures(int count);
    /// The stored number of frames, as a form is built with: 3 is possible here.
    void LoadPictures(int count);
    void SetUseMaskColor(bool use);
    void SetMaskColor(Colour colour);
    void SetNoBackground(bool flat);
    void SetBackColor(Colour colour);
    void SetPictureOffset(int pixels);
    void SetEnabled(bool enabled) override;
    void SetWidth(double width) override;
    void SetHeight(double height) override;

    ButtonState State() const { return state_; }
    /// All that its pixels depend on beside state and size, as it was when a drawing was last due.
    const ButtonLook& Look() const { return look_; }
    /// The fonts that its caption is measured and drawn in: those that are installed.
    const FontEngine& LetterFonts() const { return face_.Fonts(); }
    /// What the button looks like now; drawn when somebody looks and something has changed since.
    const Surface& Face() const;
    /// Grows with every drawing that is due; equal values mean an unchanged face.
    std::uint64_t LookRevision() const { return lookRevision_; }

    /// The pointer moves inside: at every move. It has left: once, when the hover ends.
    Event<> MouseIn, MouseOut;

    /// Runs while the pointer is on the button and tells that it has left; else there is none.
    Timer* HoverTimer() const { return hover_.get(); }

    void PointerPressed(int button, int shift, float x, float y) override;
    void PointerMoved(int button, int shift, float x, float y) override;
    void PointerReleased(int button, int shift, float x, float y) override;
    void KeyPressed(int code, int shift) override;
    void CharacterTyped(int character) override;
    void KeyReleased(int code, int shift) override;
    void FocusGained() override;
    void FocusLost() override;

    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    /// Stores the state; true if it is another one, for which alone the button is drawn anew.
    bool SetState(ButtonState state);
    ButtonState StateAtRest() const { return hasFocus_ ? ButtonState::Focused : ButtonState::Normal; }
    void Redraw();
    void PreparePicture();
    void StartHover();
    void EndHover();
    bool IsMouseOver() const;

    ButtonLook look_;
    Image picture_;
    ButtonState state_ = ButtonState::Normal;
    bool hasFocus_ = false;
    bool mouseDown_ = false;
    std::optional<bool> savedTabStop_;
    std::unique_ptr<Timer> hover_;
    std::uint64_t lookRevision_ = 1;
    mutable std::uint64_t drawnRevision_ = 0;
    mutable Surface face_;
};

}  // namespace coinlet
