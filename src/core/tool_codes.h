#pragma once

namespace coinlet {

/// Values of the session's `ToolCode`. Those from 0 to 15 are also the places of the buttons in `Main.Knop`.
enum ToolCodes : int {
    freeHandTool = 0,
    lineTool = 1,
    shapesMenuTool = 2,
    polygonTool = 3,
    arcTool = 4,
    fillTool = 5,
    eraseTool = 6,
    curvedTextTool = 7,
    textTool = 8,
    pickTool = 9,
    removeTool = 10,
    replaceTool = 11,
    copyTool = 12,
    flipMenuTool = 13,
    holeTool = 14,
    aboutTool = 15,
    lastToolButton = aboutTool,

    // The shapes, in the order of their menu.
    rectangleShape = 21,
    roundedRectangleShape,
    ellipseShape,
    triangleShape,
    squareShape,
    pentagonShape,
    hexagonShape,
    heartShape,
    diamondShape,
    quatroShape,
    rasterShape,
    openStarShape,
    starShape,
    innerBoxShape,
    doubleTriangleShape,
    treeShape,
    firstShapeTool = rectangleShape,
    lastShapeTool = treeShape,

    colourChooserTool = 40,
    /// An image floats over the canvas.
    imageFloats = 50,
    /// What was armed is used up.
    usedUpTool = 99,
    /// The filter of entry i of the menu ran: this and i.
    filterTools = 100,
    /// Nothing is armed, and a release of the pointer doesn't mark the design as changed.
    nothingArmed = 999,
};

/// How many buttons the tools have, and how many entries the menu of shapes.
constexpr int toolButtonCount = lastToolButton + 1;
constexpr int shapeCount = lastShapeTool - firstShapeTool + 1;

constexpr bool IsShapeTool(int code) {
    return code >= firstShapeTool && code <= lastShapeTool;
}

}  // namespace coinlet
