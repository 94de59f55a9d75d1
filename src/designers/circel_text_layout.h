#pragma once

namespace coinlet {

class CircelText;

/// Places the controls of the form and gives them their captions.
void LayOutCircelText(CircelText& form);

}  // namespace coinlet
