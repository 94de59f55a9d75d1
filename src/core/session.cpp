#include "core/session.h"

namespace coinlet {

void Session::VisitProperties(PropertyVisitor& visitor) {
    VisitProperty(
        visitor, "ToolCode", PropertyKind::Number, [this] { return std::int16_t{ToolCode}; },
        [this](std::int16_t code) { ToolCode = code; });
    VisitField(visitor, "DesignChanged", DesignChanged);
    VisitField(visitor, "StartX", StartX);
    VisitField(visitor, "StartY", StartY);
    VisitField(visitor, "LastX", LastX);
    VisitField(visitor, "LastY", LastY);
    VisitField(visitor, "EraserSize", EraserSize);
    VisitField(visitor, "LineWidth", LineWidth);
    VisitField(visitor, "CornerSize", CornerSize);
    VisitField(visitor, "RasterStep", RasterStep);
    VisitField(visitor, "TextPlacing", TextPlacing);
    VisitField(visitor, "DesignName", DesignName);
    VisitField(visitor, "DesignFile", DesignFile);
    VisitField(visitor, "ImageFolder", ImageFolder);
    VisitField(visitor, "LanguageName", LanguageName);
    VisitField(visitor, "MaterialName", MaterialName);
    VisitField(visitor, "MaterialRed", MaterialRed);
    VisitField(visitor, "MaterialGreen", MaterialGreen);
    VisitField(visitor, "MaterialBlue", MaterialBlue);
    VisitField(visitor, "PmsRed", PmsRed);
    VisitField(visitor, "PmsGreen", PmsGreen);
    VisitField(visitor, "PmsBlue", PmsBlue);
    VisitField(visitor, "BackName", BackName);
    VisitField(visitor, "SaveMode", SaveMode);
}

}  // namespace coinlet
