#pragma once

#include "base/files.h"

#include <string>

namespace coinlet {

class Image;
struct Context;

/// Puts a design in the place of the one on the canvas: its picture from `file`, the side panel as `composed`
/// shows it, and the info text beside the file. Nothing is unsaved then, and Undo brings back the design
/// itself.
void ShowDesign(Context& context, const std::string& name, const fs::path& file, const Image& picture,
                const Image& composed);

}  // namespace coinlet
