#pragma once

#include "player/record.h"
#include "surface/printer.h"

#include <cstddef>

namespace coinlet::player {

/// Two printers, "Printer A" (current at first) and "Printer B", that write down what is sent to them, a
/// line a call, in twips:
///
///     job
///     page portrait|landscape
///     text X Y SIZE bold|plain R,G,B "TEXT"
///     picture X Y W H
///     box X1 Y1 X2 Y2 R,G,B
///     end
class PrinterRecord : public Printer {
public:
    std::vector<std::string> DeviceNames() const override;
    std::string DeviceName() const override { return current_; }
    void SelectPrinter(std::string_view name) override;

    void SetOrientation(PageOrientation orientation) override { orientation_ = orientation; }
    void FeedPage() override;
    void Print(double x, double y, const FontProperties& font, Colour colour, std::string_view text) override;
    void PaintPicture(const Image& image, const Rectangle& to) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void NewPage() override { onPage_ = false; }
    void EndDoc() override;
    /// The lines of the job are forgotten.
    void KillDoc() override;

    Record<std::string> lines;

private:
    std::string current_ = "Printer A";
    PageOrientation orientation_ = PageOrientation::Portrait;
    std::size_t jobStart_ = 0;
    bool inJob_ = false;
    bool onPage_ = false;
};

}  // namespace coinlet::player
