#pragma once

#include <string_view>

namespace coinlet {

struct Context;

/// Fills the list of the image browser with the pictures of the session's image folder that match `pattern`.
void ListImages(Context& context, std::string_view pattern);
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

    /// Shows the picked picture in the preview; one that doesn't fit is squeezed and can't be turned.
    void ShowPicked();
    bool IsLarge() const;

    Context& context_;
};

}  // namespace coinlet
