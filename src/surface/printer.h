#pragma once

#include "surface/colour.h"
#include "surface/font_properties.h"
#include "surface/geometry.h"
#include "surface/image.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

enum class PageOrientation { Portrait = 1, Landscape = 2 };

/// The system's printers and the job that is being printed. Places and sizes are twips from the top left
/// corner of the sheet, not from where a printer's margin ends. The first thing drawn starts a job; a page is
/// fed when something is drawn on it.
class Printer {
public:
    virtual ~Printer() = default;

    /// The names of all printers as they are now.
    virtual std::vector<std::string> DeviceNames() const = 0;
    /// The current printer.
    virtual std::string DeviceName() const = 0;
    /// Makes a printer current; an unknown name changes nothing.
    virtual void SelectPrinter(std::string_view name) = 0;

    /// Of the pages from here on.
    virtual void SetOrientation(PageOrientation orientation) = 0;
    /// Feeds the sheet that the next thing drawn would stand on, be anything drawn there or not.
    virtual void FeedPage() = 0;
    virtual void Print(double x, double y, const FontProperties& font, Colour colour,
                       std::string_view text) = 0;
    virtual void PaintPicture(const Image& image, const Rectangle& to) = 0;
    virtual void Box(double x1, double y1, double x2, double y2, Colour colour) = 0;
    /// The next thing drawn stands on a further page.
    virtual void NewPage() = 0;
    virtual void EndDoc() = 0;
    /// Gives the job up: nothing comes of what was drawn since it started.
    virtual void KillDoc() = 0;
};

}  // namespace coinlet
