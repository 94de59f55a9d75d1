#pragma once

#include "controls/event.h"
#include "controls/house_colours.h"
#include "controls/property.h"
#include "core/design_revision.h"
#include "core/language.h"
#include "core/materials.h"
#include "core/tool_codes.h"
#include "core/tool_sliders.h"

#include <cstdint>
#include <string>
#include <utility>

namespace coinlet {

/// The value of `ToolCode`, which is read and written as the number that it is.
class ToolInUse {
public:
    ToolInUse& operator=(int code) {
        const auto former = std::exchange(code_, static_cast<std::int16_t>(code));
        if (code_ != former) Changed();
        return *this;
    }
    operator std::int16_t() const { return code_; }

    /// Another tool is in use now.
    Event<> Changed;

private:
    std::int16_t code_ = nothingArmed;
};

/// What all forms share beside the canvas: the tool in use and its measures, the gesture, the colour of the
/// present pick, the design and its metal. Forms read and write it directly.
struct Session {
    ToolInUse ToolCode;
    /// The design has changes that were not saved.
    bool DesignChanged = false;
    /// Where the present gesture started; while drawing free hand, the last point.
    float StartX = 0, StartY = 0;
    /// The previous pointer position of a gesture, to wipe its inverted preview.
    float LastX = 0, LastY = 0;
    // The measures of the tools, in pixels.
    std::uint8_t EraserSize = eraserSizes.standard;
    std::uint8_t LineWidth = lineWidths.standard;
    std::int32_t CornerSize = cornerSizes.standard;
    std::int16_t RasterStep = rasterSteps.standard;
    /// A text hangs on the pointer: from "Draw Text" to the next release on the canvas.
    bool TextPlacing = false;
    /// Name of the design in the store; empty for a new one.
    std::string DesignName;
    /// The design as it was when it was last stored, opened or made new.
    DesignRevision StoredDesign;
    /// The path that the last save, export or opening worked on.
    std::string DesignFile;
    /// The folder that the image browser lists.
    std::string ImageFolder;
    std::string LanguageName{languages[0].name};
    std::string MaterialName{blackNickel.name};
    std::int16_t MaterialRed = 0, MaterialGreen = 0, MaterialBlue = 0;
    /// The fill colour of the present pick. Red and green keep the text they came from, a number's decimal
    /// form or a field of the colour table, since the table is searched by that text.
    std::string PmsRed = std::to_string(Red(accentColour)), PmsGreen = std::to_string(Green(accentColour));
    std::int16_t PmsBlue = Blue(accentColour);
    std::string BackName;
    /// "BMP" for saving a design, "JPG" for its export.
    std::string SaveMode;

    void VisitProperties(PropertyVisitor& visitor);
};

}  // namespace coinlet
