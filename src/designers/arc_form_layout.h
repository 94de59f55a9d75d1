#pragma once

namespace coinlet {

class ArcForm;

/// Gives the controls of a new form their places, captions and looks.
void LayOutArcForm(ArcForm& form);

}  // namespace coinlet
