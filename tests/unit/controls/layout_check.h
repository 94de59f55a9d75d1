#pragma once

#include "controls/form.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

namespace coinlet::test {

inline double RightOf(const Control& control) {
    return control.Left() + control.Width();
}
inline double BottomOf(const Control& control) {
    return control.Top() + control.Height();
}

/// The controls, which all lie directly on the form, neither leave it nor cover each other.
inline void ExpectApartAndInside(const Form& form, const std::vector<const Control*>& controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control& control = *controls[i];
        EXPECT_GE(control.Left(), 0) << control.Name();
        EXPECT_GE(control.Top(), 0) << control.Name();
        EXPECT_LE(RightOf(control), form.Width) << control.Name();
        EXPECT_LE(BottomOf(control), form.Height) << control.Name();
        for (std::size_t j = 0; j < i; ++j) {
            const Control& other = *controls[j];
            EXPECT_TRUE(RightOf(control) <= other.Left() || RightOf(other) <= control.Left() ||
                        BottomOf(control) <= other.Top() || BottomOf(other) <= control.Top())
                << control.Name() << " over " << other.Name();
        }
    }
}

}  // namespace coinlet::test
