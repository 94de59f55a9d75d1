#pragma once

namespace coinlet {

class Shape;
struct Session;

/// The box that the user draws around what he wants of a picture. It begins at a press, which becomes the
/// session's `StartX` and `StartY`, as a box of no size, and is seen from then on.
void BeginBox(Session& session, Shape& box, float x, float y);

/// Stretches the box from where it began to the pointer, whose unit belongs to it: it only grows to the right
/// and downwards, and a pointer elsewhere counts as one at the beginning. Whether it is seen stays.
void StretchBox(const Session& session, Shape& box, float x, float y);

}  // namespace coinlet
