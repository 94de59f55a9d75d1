#pragma once

#include "surface/printer.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace coinlet {

/// The printers that the system has.
struct SystemPrinters {
    /// Their names as they are now.
    std::function<std::vector<std::string>()> names;
    /// The name of the standard one; empty if there is none.
    std::function<std::string()> standard;
    /// Opens one for a job, on the paper that it has.
    std::function<std::unique_ptr<QPagedPaintDevice>(const std::string& name)> open;
};

/// Those that the toolkit knows. Their page is the whole sheet: places count from its corner, not from where
/// the printer's margin ends.
SystemPrinters ToolkitPrinters();

/// The printers of the system. Where there is none, one entry "PDF" prints on A4 sheets into the file
/// `Coinlet.pdf` of a folder; the file of an earlier job is replaced whole. Where the folder is missing there
/// is no file, and nothing is said, as with an export.
///
/// A job is kept until its end and printed then: one that is given up, or whose printer has gone away, leaves
/// nothing.
class QtPrinter : public Printer {
public:
    explicit QtPrinter(std::filesystem::path folder, SystemPrinters printers = ToolkitPrinters());
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    std::vector<std::string> DeviceNames() const override;
    std::string DeviceName() const override;
    void SelectPrinter(std::string_view name) override;

    void SetOrientation(PageOrientation orientation) override { orientation_ = orientation; }
    void FeedPage() override;
    void Print(double x, double y, const FontProperties& font, Colour colour, std::string_view text) override;
    void PaintPicture(const Image& image, const Rectangle& to) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;

private:
    struct Job;

    /// Names of the system's printers, as they were when they were last listed.
    const std::vector<std::string>& Listed() const;
    bool IsListed(std::string_view name) const;
    void PrintToFile(const Job& job) const;

    std::filesystem::path folder_;
    SystemPrinters printers_;
    mutable std::optional<std::vector<std::string>> listed_;
    std::string chosen_;
    PageOrientation orientation_ = PageOrientation::Portrait;
    std::unique_ptr<Job> job_;
    bool pageIsDue_ = false;
};

}  // namespace coinlet
