#pragma once

namespace coinlet {

class CollectionForm;

/// Places the dialog's controls and gives them their looks and fixed captions.
void LayOutCollectionForm(CollectionForm& form);

}  // namespace coinlet
