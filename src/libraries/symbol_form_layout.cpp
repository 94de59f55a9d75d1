#include "libraries/symbol_form_layout.h"

#include "controls/edge.h"
#include "controls/number_list.h"
#include "controls/placing.h"
#include "core/dialog_layout.h"
#include "libraries/symbol_form.h"

#include <initializer_list>
#include <string>

namespace coinlet {

namespace {

// The choice of the font in a panel on top, the strip in one below it, the ways out at the foot. All in
// pixels.
constexpr int margin = dialogMargin, inset = 12;
constexpr int windowPixels = 552, windowRows = 218;
constexpr int panelWidth = windowPixels + 2 * inset, formWidth = panelWidth + 2 * margin;
constexpr int buttonHeight = 28;
constexpr int choiceTop = margin, choiceHeight = buttonHeight + 2 * inset;
constexpr int stripTop = choiceTop + choiceHeight + margin, sliderHeight = 20;
constexpr int stripPanelHeight = windowRows + 6 + sliderHeight + 2 * inset;
constexpr int foot = stripTop + stripPanelHeight + margin;
constexpr int formHeight = foot + buttonHeight + margin;

/// Of the symbols, in points.
constexpr NumberList sizes{10, 150, 2, 60};

/// All printable characters but the blank.
std::string Printable() {
    constexpr char first = '!', last = '~';
    std::string characters;
    for (char character = first; character <= last; ++character)
        characters += character;
    return characters;
}

void PlaceStrip(SymbolForm& form) {
    form.File1.Visible = false;
    form.BackLabel.AutoSize = true;
    form.BackLabel.Sample = true;
    form.BackLabel.FontSize = static_cast<float>(sizes.standard);
    form.BackLabel.Caption = Printable();
    form.BackLabel.Visible = false;
    form.BackPic.SetHeight(windowRows * twipsPerPixel);
    form.BackPic.Visible = false;
}

void PlaceChoice(SymbolForm& form) {
    constexpr int top = choiceTop + inset, fieldTop = top + (buttonHeight - dialogFieldHeight) / 2;
    constexpr int left = margin + inset, fontWidth = 240, showWidth = 100;
    constexpr int sizeWidth = 72, sizeLeft = formWidth - margin - inset - sizeWidth, labelWidth = 36;
    PlaceByPixels(form.Combo1, left, fieldTop, fontWidth, dialogFieldHeight);
    form.InstalKnop.SetCaption("Show");
    PlaceByPixels(form.InstalKnop, left + fontWidth + dialogGap, top, showWidth, buttonHeight);
    form.DefaultButton = &form.InstalKnop;
    PlaceText(form.Label1, "Size", sizeLeft - labelWidth, fieldTop + 5, labelWidth);
    FillWithNumbers(form.Combo2, sizes);
    PlaceByPixels(form.Combo2, sizeLeft, fieldTop, sizeWidth, dialogFieldHeight);
}

void PlaceWindow(SymbolForm& form) {
    constexpr int left = margin + inset, top = stripTop + inset;
    PlaceByPixels(form.Pic, left, top, windowPixels, windowRows);
    form.Pic.MousePointer = crossPointer;
    SetEdge(form.Shape1, form.Pic);
    constexpr int cornerSide = 32;
    form.Layer.BorderDotted = true;
    form.Layer.Visible = false;
    form.Layer.Move(0, 0, cornerSide, cornerSide);
    constexpr int aboutASymbol = 80, nearlyAWindow = 500;
    form.HScroll1.SetRange(0, 0);
    form.HScroll1.SmallChange = aboutASymbol;
    form.HScroll1.LargeChange = nearlyAWindow;
    PlaceByPixels(form.HScroll1, left, top + windowRows + 6, windowPixels, sliderHeight);
}

void PlacePanels(SymbolForm& form) {
    for (Label* panel : {&form.Label3, &form.Label4})
        panel->Border = true;
    PlaceByPixels(form.Label3, margin, choiceTop, panelWidth, choiceHeight);
    PlaceByPixels(form.Label4, margin, stripTop, panelWidth, stripPanelHeight);
}

}  // namespace

void LayOutSymbolForm(SymbolForm& form) {
    SetTitleAndSize(form, "Symbols", formWidth, formHeight);
    PlaceStrip(form);
    PlacePanels(form);
    PlaceChoice(form);
    PlaceWindow(form);
    constexpr int waysOutWidth = 248;
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, formWidth - margin - waysOutWidth, foot, waysOutWidth,
                 buttonHeight);
}

}  // namespace coinlet
