#include "core/tool_sliders.h"

namespace coinlet {

std::string LineWidthCaption(int value) {
    return "Line Width (" + std::to_string(value) + ")";
}

std::string CornerCaption(int value) {
    return "Corner (" + std::to_string(value) + ")";
}

std::string EraserCaption(int value) {
    return "Size (" + std::to_string(value) + "/" + std::to_string(eraserSizes.maximum) + ")";
}

std::string RasterCaption(int value) {
    return "Raster (" + std::to_string(value) + ")";
}

}  // namespace coinlet
