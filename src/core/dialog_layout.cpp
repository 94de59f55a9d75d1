#include "core/dialog_layout.h"

#include "controls/form.h"
#include "controls/label.h"
#include "controls/placing.h"
#include "controls/vista_button.h"

namespace coinlet {

void SetTitleAndSize(Form& dialog, std::string_view title, int width, int height) {
    dialog.Caption = title;
    dialog.Width = width * twipsPerPixel;
    dialog.Height = height * twipsPerPixel;
}

void PlaceText(Label& label, std::string_view text, int left, int top, int width) {
    label.Caption = text;
    PlaceByPixels(label, left, top, width, dialogTextHeight);
}

void PlaceNamedField(Label& label, std::string_view name, Control& field, int left, int top, int width) {
    PlaceText(label, name, left, top, width);
    PlaceByPixels(field, left, top + dialogFieldOffset, width, dialogFieldHeight);
}

void PlaceNamedFields(std::initializer_list<NamedField> fields, int left, int top, int width, int between) {
    const int count = static_cast<int>(fields.size());
    const int each = (width - (count - 1) * between) / count;
    for (const NamedField& named : fields) {
        PlaceNamedField(named.label, named.name, named.field, left, top, each);
        left += each + between;
    }
}

void PlaceButtonRow(VistaButton& button, Label& label, std::string_view words, const ButtonRow& row,
                    int lines) {
    constexpr int lineOfLetters = 13;  // The rest of a label's height lies below them.
    PlaceByPixels(button, row.left, row.top, row.buttonWidth, row.buttonHeight);
    label.Caption = words;
    const int beside = row.buttonWidth + dialogGap;
    PlaceByPixels(label, row.left + beside, row.top + (row.buttonHeight - lines * lineOfLetters) / 2,
                  row.width - beside, lines * dialogTextHeight);
}

void PlaceWaysOut(VistaButton& exportKnop, VistaButton& cancelKnop, int left, int top, int width,
                  int height) {
    const int each = (width - dialogGap) / 2;
    exportKnop.SetCaption("Export");
    PlaceByPixels(exportKnop, left, top, each, height);
    cancelKnop.SetCaption("Cancel");
    PlaceByPixels(cancelKnop, left + width - each, top, each, height);
}

}  // namespace coinlet
