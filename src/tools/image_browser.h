#pragma once

namespace coinlet {

class Surface;
struct Context;

/// Lists the pictures that come with the program: their folder becomes the session's image folder.
void ListStockImages(Context& context);
/// Shows how many there are.
void ShowImageCount(Context& context);

/// The panel at the left: lists the pictures of a folder, shows the picked one, mirrors or turns it, and lets
/// it float over the canvas.
class ImageBrowser {
public:
    explicit ImageBrowser(Context& context);

private:
    void List1_Click();
    void ImgKnop_Click();
    void MapKnop_Click();
    void HorKnop_Click();
    void VerKnop_Click();
    void RotatieKnop_Click();
    void OkKnop_Click();

    /// Mirrors the picked picture and shows it.
    void Mirror(void (&flip)(Surface& picture));
    /// Shows the picked picture in the preview; one that doesn't fit is squeezed and can't be turned.
    void ShowPicked();
    bool IsLarge() const;

    Context& context_;
};

}  // namespace coinlet
