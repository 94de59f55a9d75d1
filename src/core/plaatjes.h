#pragma once

#include "controls/element.h"
#include "controls/form.h"
#include "controls/picture_box.h"
#include "core/stock_pictures.h"

namespace coinlet {

/// A form without any logic, always loaded and never shown, that holds the program's stock pictures.
class PlaatjesForm : public Form {
public:
    explicit PlaatjesForm(FormServices services) : Form(services, "Plaatjes") {
        Img[0].Picture = StartPicture();
        Img[1].Picture = AllDesignsPicture();
        Img[2].Picture = AllClipartsPicture();
        HolePic.Picture = HoleRings();
    }

    /// 0: what the image browser shows before a picture is picked; 1, 2: previews of the print jobs.
    ControlArray<StockPicture> Img{*this, "Img", 0, 3};
    /// The ring of a hole in the four metals, side by side, 400 by 100 pixels.
    StockPicture HolePic{*this, "HolePic"};
};

}  // namespace coinlet
