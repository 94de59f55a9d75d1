#pragma once

#include "base/files.h"
#include "surface/image.h"

#include <optional>

namespace coinlet {

class IncomingPictures;
class PictureCodecs;
struct Context;

/// A picture or a design that the program begins with, named on its command line.
struct NamedDocument {
    fs::path file;
    Image picture;
};

/// Nothing if the file can't be read or holds no picture.
std::optional<NamedDocument> ReadNamedDocument(const fs::path& file, const PictureCodecs& codecs);

/// A file that ends in ".pat" is shown as a design of the store is when it is opened, under its name without
/// the ending, and stays where it is; any other picture floats over the canvas.
void ShowNamedDocument(Context& context, IncomingPictures& pictures, const NamedDocument& document);

}  // namespace coinlet
