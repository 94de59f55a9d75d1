#pragma once

#include "controls/picture_box.h"

#include <functional>
#include <optional>

namespace coinlet {

/// A picture on which one works with the pointer, place by place, and as well with the keyboard: whatever can
/// be drawn, dragged or chosen on it can be so by keys. While it has the focus the arrows move the pointer
/// over it, by a pixel or with Shift by ten, and never beyond what its containers show of it; Space is the
/// pointer's left button and Shift+F10 its right one, held down for as long as the key is.
class PointedPicture : public PictureBox {
public:
    PointedPicture(Container& container, std::string_view name, int index = noIndex);

    /// True while the arrows are somebody else's. Empty: never.
    std::function<bool()> ArrowsAreTaken;
    /// False where the form shows in a way of its own that the picture has the focus.
    bool FocusRing = true;

    /// A picture without pixels is nothing to stop at.
    bool StopsTab() const override;
    bool WantsKey(int code, int shift) const override;
    void PointerPressed(int button, int shift, float x, float y) override;
    /// A move without a button counts as one with the button that a key holds.
    void PointerMoved(int button, int shift, float x, float y) override;
    void PointerReleased(int button, int shift, float x, float y) override;
    void KeyPressed(int code, int shift) override;
    void KeyReleased(int code, int shift) override;
    void FocusLost() override;

private:
    struct Place {
        double x = 0, y = 0;
    };

    /// What its containers show of it, in pixels of its own.
    PixelRect ShownPart() const;
    /// The pointer is at a place now, in the units of its events.
    void RememberPointer(float x, float y);
    /// Where the pointer is on the picture, in the units of its events; it may be beyond an edge.
    PressPlace Pointer() const;
    /// The nearest place that is shown to the one so many pixels away from the pointer.
    std::optional<PressPlace> PlaceFromPointer(int columns, int rows) const;

    bool HoldsByKeys() const;
    void MoveByKeys(int columns, int rows, int shift);
    void PressByKeys(int button, int shift);
    void ReleaseByKeys(int button, int shift);

    /// In pixels of the container: on the screen the pointer stays where it is when the picture is moved
    /// away below it. Nothing until the pointer was here.
    std::optional<Place> pointer_;
};

}  // namespace coinlet
