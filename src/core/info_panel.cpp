#include "core/info_panel.h"

#include "core/main_form.h"

namespace coinlet {

void PrintInfoHeader(MainForm& main) {
    Surface& header = main.TopInfoPic.surface;
    header.FontSize = 8;
    header.CurrentX = 4;
    header.CurrentY = 3;
    header.Print("Material, PMS Colors and Back");
}

void DrawInfoRows(MainForm& main, Colour textColour) {
    Surface& panel = main.InfoPic.surface;
    panel.FontSize = 8;
    panel.FontBold = false;
    panel.ForeColor = textColour;
    for (int row = 0; row < infoRows; ++row) {
        const int y = InfoRowTop(row);
        panel.Line(20, y, 40, y + 20, black, Box::Outline);
        panel.Line(22, y + 2, 38, y + 18, RGB(195, 195, 195), Box::Filled);
        panel.CurrentX = 45;
        panel.CurrentY = static_cast<float>(y + 4);
        panel.Print("PMS");
    }
}

}  // namespace coinlet
