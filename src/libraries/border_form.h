#pragma once

#include "controls/check_box.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"
#include "core/materials.h"

#include <cstddef>

namespace coinlet {

struct Context;

/// The library of borders, and the choice of the metal: lays a ready-made border, with a hole if wanted, over
/// the design. The session's metal follows the choice at once, and starts with the first one.
class BorderForm : public Form {
public:
    explicit BorderForm(Context& context);

    FileListBox File1{*this, "File1"};       ///< Reads the library; hidden.
    PictureBox BackPic{*this, "BackPic"};    ///< The strip of the border in all metals; hidden.
    PictureBox Orgineel{*this, "Orgineel"};  ///< The border in the metal, at full size; hidden.
    ControlArray<StockPicture> Image1{*this, "Image1", 0, 4};  ///< A blank tag of each metal.
    StockPicture HolePic{*this, "HolePic"};  ///< The rings of holes in the four metals, side by side.

    ListBox List1{*this, "List1"};                               ///< The names of the borders.
    Shape Shape1{*this, "Shape1"};                               ///< The edge of the preview.
    PictureBox Pic{*this, "Pic"};                                ///< The border at half its size.
    ControlArray<OptionButton> Option1{*this, "Option1", 0, 4};  ///< The metal.
    CheckBox Check2{*this, "Check2"};  ///< The border darkens the design instead of covering it.
    CheckBox Check1{*this, "Check1"};  ///< With a hole.
    Label Label2{*this, "Label2"};     ///< The panel behind the slider of the hole.
    Label Label3{*this, "Label3"};     ///< Where the hole is.
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};  ///< The places that it can have.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void List1_Click();
    void Option1_Click(int index);
    void HScroll1_Change();
    void Check1_Click();
    void ExportKnop_Click();
    void CancelKnop_Click();

    bool HasHole() const { return Check1.Value(); }
    bool Merges() const { return Check2.Value(); }
    void SetMaterial(int index);
    /// Shows the border in the metal, with the hole if there is one, at both sizes.
    void DrawBorderPreview();
    /// Where the frame of the metal starts in the strip, in pixels.
    int BorderColumn() const;
    /// Where its ring starts in the picture of holes, in pixels.
    int HoleColumn() const;
    /// Stamps the ring from `column` on the border, at `scale` times the size and place of the preview.
    void StampHole(Surface& border, int scale, int column) const;

    Context& context_;
    std::size_t borderMetal_ = 0;
    // Where the stamp of the hole goes on the preview, in pixels. At first it is a pixel higher than "Top".
    int holeX_ = 100, holeY_ = 10;
};

}  // namespace coinlet
