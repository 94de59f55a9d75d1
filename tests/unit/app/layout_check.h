#pragma once

#include "controls/form.h"

#include <string>

namespace coinlet {
class Label;
}

namespace coinlet::test {

// What the user expects of every form, whatever it is for. Each of these reports what is wrong as failures of
// the test that runs, with the control's name and `when`, the state that the form is in.

/// No control leaves what it lies in: the form, or a frame. What lies on a picture may, as the picture clips
/// it. Hidden controls are held to it too, but for those that only keep something for the form: these have
/// the place that they were made with, the corner.
void ExpectInside(const Form& form, const std::string& when);

/// Of the controls that are seen in one container, none covers another. Lines and edges are no controls in
/// this sense; a label without a text, and a picture of nothing but lines to read, is a ground, on which
/// others may lie that it holds wholly.
void ExpectApart(const Form& form, const std::string& when);

/// Captions of labels, check boxes, options and buttons, and texts that are only to be read, are shown whole,
/// without a word being cut.
void ExpectTextsWhole(const Form& form, const std::string& when);

/// The next stop of the tab key begins below the one before, or lies to the right of it.
void ExpectReadingOrder(const Form& form, const std::string& when);

/// A text fits a label whole, also if the label shows another one now.
void ExpectWhole(const Label& label, const std::string& text, const std::string& when);

}  // namespace coinlet::test
