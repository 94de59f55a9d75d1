#include "player/printer_record.h"

#include "player/values.h"

#include <algorithm>
#include <initializer_list>

namespace coinlet::player {

namespace {

std::string Line(std::string_view word, std::initializer_list<double> numbers) {
    std::string line(word);
    for (const double number : numbers)
        line += " " + ShowNumber(number);
    return line;
}

}  // namespace

std::vector<std::string> PrinterRecord::DeviceNames() const {
    return {"Printer A", "Printer B"};
}

void PrinterRecord::SelectPrinter(std::string_view name) {
    const auto names = DeviceNames();
    if (std::ranges::find(names, name) != names.end()) current_ = name;
}

void PrinterRecord::FeedPage() {
    if (!inJob_) {
        jobStart_ = lines.All().size();
        lines.Add("job");
    }
    if (!onPage_) lines.Add(orientation_ == PageOrientation::Landscape ? "page landscape" : "page portrait");
    inJob_ = onPage_ = true;
}

void PrinterRecord::Print(double x, double y, const FontProperties& font, Colour colour,
                          std::string_view text) {
    FeedPage();
    lines.Add(Line("text", {x, y, font.FontSize}) + (font.FontBold ? " bold " : " plain ") +
              ShowColour(colour) + " " + Quoted(text));
}

void PrinterRecord::PaintPicture(const Image&, const Rectangle& to) {
    FeedPage();
    lines.Add(Line("picture", {to.x, to.y, to.width, to.height}));
}

void PrinterRecord::Box(double x1, double y1, double x2, double y2, Colour colour) {
    FeedPage();
    lines.Add(Line("box", {x1, y1, x2, y2}) + " " + ShowColour(colour));
}

void PrinterRecord::EndDoc() {
    if (inJob_) lines.Add("end");
    inJob_ = onPage_ = false;
}

void PrinterRecord::KillDoc() {
    if (inJob_) lines.Forget(jobStart_);
    inJob_ = onPage_ = false;
}

}  // namespace coinlet::player
