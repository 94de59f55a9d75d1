#pragma once

#include "surface/printer.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace coinlet {

/// The printers of the system, with A4 sheets. Where there is none, one entry "PDF" prints into the file
/// `Coinlet.pdf` of a folder, which is made when it is needed; the file of an earlier job is replaced whole,
/// at the end of the job.
class QtPrinter : public Printer {
public:
    explicit QtPrinter(std::filesystem::path folder);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    std::vector<std::string> DeviceNames() const override;
    std::string DeviceName() const override;
    void SelectPrinter(std::string_view name) override;

    void SetOrientation(PageOrientation orientation) override { orientation_ = orientation; }
    void FeedPage() override { static_cast<void>(Page()); }
    void Print(double x, double y, const FontProperties& font, Colour colour, std::string_view text) override;
    void PaintPicture(const Image& image, const Rectangle& to) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void NewPage() override;
    void EndDoc() override;

private:
    struct Job;

    /// The page to draw on, in twips; starts the job or feeds a sheet if that is due. nullptr if the printer
    /// can't be reached.
    QPainter* Page();
    bool StartJob();
    const std::vector<std::string>& Names() const;

    std::filesystem::path folder_;
    mutable std::optional<std::vector<std::string>> names_;
    std::string chosen_;
    PageOrientation orientation_ = PageOrientation::Portrait;
    std::unique_ptr<Job> job_;
    bool pageIsDue_ = false;
};

}  // namespace coinlet
