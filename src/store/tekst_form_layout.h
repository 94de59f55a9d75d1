#pragma once

namespace coinlet {

class TekstForm;

/// Places the dialog's controls and gives them their looks and fixed captions.
void LayOutTekstForm(TekstForm& form);

}  // namespace coinlet
