#include "controls/number_list.h"

#include "controls/combo_box.h"

#include <string>

namespace coinlet {

void FillWithNumbers(ComboBox& combo, const NumberList& numbers) {
    for (int number = numbers.first; number <= numbers.last; number += numbers.step)
        combo.AddItem(std::to_string(number));
    combo.SetListIndex((numbers.standard - numbers.first) / numbers.step);
}

}  // namespace coinlet
