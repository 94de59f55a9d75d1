#pragma once

namespace coinlet {

class Afdrukken;

/// Places the dialog's controls and gives them their looks and fixed captions.
void LayOutAfdrukken(Afdrukken& form);

}  // namespace coinlet
