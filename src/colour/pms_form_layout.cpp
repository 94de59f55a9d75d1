#include "colour/pms_form_layout.h"

#include "colour/pms_form.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"

#include <array>
#include <cstddef>
#include <vector>

namespace coinlet {

namespace {

constexpr const char* formTitle = "Pantone Matching System (PMS) Colors";

constexpr int paletteColumns = 14, boxPitch = 20, boxInset = 2;  // pixels
constexpr std::array<Colour, 28> palette{
    RGB(0, 0, 0),       RGB(99, 99, 99),    RGB(189, 189, 189), RGB(255, 255, 255), RGB(255, 252, 13),
    RGB(255, 255, 125), RGB(255, 242, 176), RGB(255, 133, 0),   RGB(171, 97, 0),    RGB(112, 81, 0),
    RGB(255, 71, 227),  RGB(235, 0, 155),   RGB(130, 7, 78),    RGB(255, 214, 161), RGB(41, 255, 112),
    RGB(0, 181, 60),    RGB(2, 99, 28),     RGB(255, 84, 128),  RGB(245, 64, 41),   RGB(184, 0, 7),
    RGB(117, 130, 255), RGB(28, 0, 255),    RGB(12, 0, 130),    RGB(130, 252, 255), RGB(38, 207, 255),
    RGB(0, 128, 135),   RGB(89, 0, 142),    RGB(224, 146, 112),
};

/// A label's place, in pixels on the form.
struct LabelPlace {
    Label PMSForm::*label;
    int left, top, width, height;
};

constexpr int formWidth = 312, formHeight = 356;  // pixels
constexpr int column1 = 16, column2 = 116, column3 = 212;
constexpr std::array labels{
    LabelPlace{&PMSForm::Label15, column1, 12, 280, 20},  LabelPlace{&PMSForm::Label2, column1, 40, 88, 88},
    LabelPlace{&PMSForm::Label8, column2, 40, 180, 16},   LabelPlace{&PMSForm::Label4, column2, 64, 92, 16},
    LabelPlace{&PMSForm::Label5, column2, 80, 84, 16},    LabelPlace{&PMSForm::Label6, column2, 96, 84, 16},
    LabelPlace{&PMSForm::Label7, column2, 112, 84, 16},   LabelPlace{&PMSForm::Label9, column3, 64, 84, 16},
    LabelPlace{&PMSForm::Label10, column3, 80, 84, 16},   LabelPlace{&PMSForm::Label11, column3, 96, 84, 16},
    LabelPlace{&PMSForm::Label12, column3, 112, 84, 16},  LabelPlace{&PMSForm::Label1, column1, 144, 280, 16},
    LabelPlace{&PMSForm::Label13, column1, 196, 280, 16},
};

int PaletteLeft(int box) {
    return box % paletteColumns * boxPitch;
}
int PaletteTop(int box) {
    return box / paletteColumns * boxPitch;
}

std::vector<Rectangle> PalettePlaces() {
    std::vector<Rectangle> places;
    places.reserve(palette.size());
    for (int box = 0; box < static_cast<int>(palette.size()); ++box) {
        places.push_back({static_cast<double>(PaletteLeft(box)), static_cast<double>(PaletteTop(box)),
                          boxPitch + 1, boxPitch + 1});
    }
    return places;
}

}  // namespace

void LayOutPmsForm(PMSForm& form) {
    SetTitleAndSize(form, formTitle, formWidth, formHeight);
    for (const LabelPlace& place : labels)
        PlaceByPixels(form.*place.label, place.left, place.top, place.width, place.height);

    form.Label15.Caption = formTitle;
    form.Label15.FontSize = 10;
    form.Label15.FontBold = true;
    form.Label2.Transparent = false;
    form.Label2.Border = true;
    form.Label8.FontBold = true;
    form.Label13.Caption = "Search by number";

    PlaceByPixels(form.HScroll1, column1, 164, 280, 20);
    PlaceByPixels(form.Combo1, column1, 212, 280, 24);
    const int columns = paletteColumns * boxPitch + 1;
    const int rows = static_cast<int>(palette.size()) / paletteColumns * boxPitch + 1;
    PlaceByPixels(form.Pic, column1, 252, columns, rows);
    form.Pic.SetPressPlaces(PalettePlaces());
    PlaceByPixels(form.OkKnop, column1, 312, 136, 28);
    PlaceByPixels(form.CancelKnop, 160, 312, 136, 28);
    form.OkKnop.SetCaption("OK");
    form.CancelKnop.SetCaption("Cancel");
}

void DrawPmsPalette(Surface& surface) {
    for (int box = 0; box < static_cast<int>(palette.size()); ++box) {
        const int x = PaletteLeft(box), y = PaletteTop(box);
        const Colour colour = palette[static_cast<std::size_t>(box)];
        surface.Line(x, y, x + boxPitch, y + boxPitch, black, Box::Outline);
        surface.Line(x + boxInset, y + boxInset, x + boxPitch - boxInset, y + boxPitch - boxInset, colour,
                     Box::Filled);
    }
}

}  // namespace coinlet
