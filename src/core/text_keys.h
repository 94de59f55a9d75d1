#pragma once

#include <string_view>

/// The keys of the language tables, by what their texts are for. `LookupInfoText` and `ShowHint` take them.
/// A key that the code looks up stands here, or in
/// name_keys.h if it is a name for assistive tools, and nowhere else.
namespace coinlet::key {

// Hints at the foot of the main window.
constexpr std::string_view ready = "001";  ///< A dialog or a tool has done its work: what comes next.
constexpr std::string_view toolsAreBack = "004";
constexpr std::string_view drawFreeHand = "010";
constexpr std::string_view drawLine = "011";
constexpr std::string_view drawShape = "012";
constexpr std::string_view designPolygon = "013";
constexpr std::string_view designArc = "014";
constexpr std::string_view fill = "015";
constexpr std::string_view erase = "016";
constexpr std::string_view writeCurvedText = "018";
constexpr std::string_view writeText = "019";
constexpr std::string_view removeColours = "020";
constexpr std::string_view replaceColours = "021";
constexpr std::string_view copyArea = "022";
constexpr std::string_view flipOrTurn = "023";
constexpr std::string_view makeHole = "024";
constexpr std::string_view readAbout = "025";
constexpr std::string_view placeFloatingImage = "027";
constexpr std::string_view chooseFillColour = "060";
constexpr std::string_view pickColour = "061";
constexpr std::string_view exportImage = "071";
constexpr std::string_view chooseSymbol = "130";
constexpr std::string_view lookAtGlitter = "140";
constexpr std::string_view keepCollection = "300";

// Notes over the canvas, and what dialogs say about themselves.
constexpr std::string_view pickIntoSidePanel = "017";
constexpr std::string_view clipartHelp = "032";
constexpr std::string_view openFileHelp = "040";
constexpr std::string_view curvedTextHelp = "050";
constexpr std::string_view backsHelp = "080";
constexpr std::string_view triangleHelp = "090";
constexpr std::string_view circleHelp = "091";
constexpr std::string_view curveHelp = "092";
constexpr std::string_view polygonHelp = "093";
constexpr std::string_view removalHelp = "100";
constexpr std::string_view importHelp = "120";
constexpr std::string_view glitterHelp = "141";
constexpr std::string_view replacementHelp = "150";
constexpr std::string_view infoTextHelp = "200";
constexpr std::string_view infoTextPrompt = "201";
constexpr std::string_view collectionHelp = "301";

// Messages and questions.
constexpr std::string_view chooseFolder = "006";
constexpr std::string_view confirmNew = "007";
constexpr std::string_view changesNotSaved = "008";
constexpr std::string_view confirmLeaving = "009";
constexpr std::string_view noClipartLibrary = "033";
constexpr std::string_view screenMadeFor = "045";
constexpr std::string_view screenMayNotFit = "046";
constexpr std::string_view screenCanBeChanged = "047";
constexpr std::string_view screenHelpEntry = "048";
constexpr std::string_view confirmOverwrite = "070";
constexpr std::string_view noPictureOffered = "400";
constexpr std::string_view collectionUnreadable = "410";

// Work that a killed program left behind.
constexpr std::string_view recovered = "420";      ///< How the name of its design begins.
constexpr std::string_view workRecovered = "421";  ///< The hint that tells of it; the name follows.

}  // namespace coinlet::key
