#pragma once

class QFrame;

namespace coinlet {

/// Paints a field of several lines or rows as far as nothing lies in it: its paper, and around it the frame,
/// whose four lines are even, however the toolkit rounds the room that it leaves for each. In the colours
/// `Base` and `WindowText` of the field's palette.
void PaintFieldEdge(QFrame& field);

}  // namespace coinlet
