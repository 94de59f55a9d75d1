#pragma once

namespace coinlet {

/// Has assistive tools, such as screen readers, told what each control is: its role, whether it is ticked,
/// its value, and what they can do to it on the user's behalf. What fields, lists and combo boxes are, the
/// toolkit tells by itself. To be called before the first window is made; further calls do nothing.
void DescribeControls();

}  // namespace coinlet
