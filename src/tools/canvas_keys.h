#pragma once

namespace coinlet {

struct Context;

/// The canvas in the hands of the keyboard: a frame around canvas and rulers shows that the keys are theirs,
/// and while an image floats the arrows are the image's.
void BindCanvasKeys(Context& context);

}  // namespace coinlet
