#pragma once

namespace coinlet {

class DialogForm;

/// The largest viewport, in twips.
constexpr double viewportWidth = 9555, viewportHeight = 6435;

/// Places the controls of the form and gives them their captions.
void LayOutDialogForm(DialogForm& form);

}  // namespace coinlet
