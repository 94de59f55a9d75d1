#pragma once

#include <string_view>

/// The keys of the names that assistive tools read out, of what has no caption. Beside those of text_keys.h
/// they are all that the program looks up in the language tables.
namespace coinlet::key {

constexpr std::string_view canvasName = "440";
constexpr std::string_view rulerName = "441";
constexpr std::string_view boardName = "442";
constexpr std::string_view sidePanelName = "443";
constexpr std::string_view floatingImageName = "444";
constexpr std::string_view picturesName = "445";
constexpr std::string_view previewName = "446";
constexpr std::string_view progressName = "447";
constexpr std::string_view lineWidthName = "448";
constexpr std::string_view designCopyName = "449";
constexpr std::string_view drawingName = "450";
constexpr std::string_view magnifierName = "451";
constexpr std::string_view paletteName = "452";
constexpr std::string_view oldColourName = "453";
constexpr std::string_view newColourName = "454";
constexpr std::string_view colourPlaceName = "455";
constexpr std::string_view chartName = "456";
constexpr std::string_view scrollAcrossName = "457";
constexpr std::string_view scrollDownName = "458";
constexpr std::string_view fontName = "459";
constexpr std::string_view symbolsName = "460";
constexpr std::string_view backsName = "461";
constexpr std::string_view chosenBackName = "462";
constexpr std::string_view bordersName = "463";
constexpr std::string_view clipartsName = "464";
constexpr std::string_view clipartSizeName = "465";
constexpr std::string_view mirrorName = "466";
constexpr std::string_view drivesName = "467";
constexpr std::string_view foldersName = "468";
constexpr std::string_view designsName = "469";
constexpr std::string_view infoTextName = "470";
constexpr std::string_view decorationName = "471";
constexpr std::string_view tagNumbersName = "472";
constexpr std::string_view tagPictureName = "473";
constexpr std::string_view helpName = "474";
constexpr std::string_view cornerName = "475";
constexpr std::string_view eraserSizeName = "476";
constexpr std::string_view rasterName = "477";
constexpr std::string_view holePlaceName = "478";
constexpr std::string_view circleLeftName = "479";
constexpr std::string_view circleTopName = "480";
constexpr std::string_view circleDiameterName = "481";
constexpr std::string_view redName = "482";
constexpr std::string_view greenName = "483";
constexpr std::string_view blueName = "484";

}  // namespace coinlet::key
