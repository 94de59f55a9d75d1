#pragma once

namespace coinlet {

/// Values of `ToolCode`, as far as code speaks of them by name. 0 to 15 are the buttons of the tool strip.
enum ToolCodes : int {
    freeHandTool = 0,
    lineTool = 1,
    shapesMenuTool = 2,
    fillTool = 5,
    eraseTool = 6,
    textTool = 8,
    pickTool = 9,
    copyTool = 12,
    flipMenuTool = 13,
    holeTool = 14,
    aboutTool = 15,
    firstShapeTool = 21,
    lastShapeTool = 36,
    colourChooserTool = 40,
    usedUpTool = 99,
};

constexpr bool IsShapeTool(int code) {
    return code >= firstShapeTool && code <= lastShapeTool;
}

}  // namespace coinlet
