#pragma once

namespace coinlet {

class ComboBox;

/// What a list of whole numbers offers: from the first to the last, so far apart (above 0); and the one that
/// stands in it at first.
struct NumberList {
    int first, last, step, standard;
};

/// Fills an empty list with the numbers, and chooses the standard one, which raises what a choice raises.
void FillWithNumbers(ComboBox& combo, const NumberList& numbers);

}  // namespace coinlet
