#include "shell/qt_printer.h"

#include "base/files.h"
#include "base/program.h"
#include "shell/look.h"
#include "shell/packed_picture.h"
#include "shell/qt_image.h"
#include "shell/qt_text.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>
#include <deque>
#include <string_view>
#include <utility>

namespace coinlet {

namespace {

constexpr std::string_view fileName = "Coinlet.pdf";
constexpr std::string_view filePrinter = "PDF";
constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr double lineWidth = 10;  // Twips: half a point.

QPageLayout::Orientation ToQt(PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// The most recent of what was made for something: what comes again soon isn't made again.
template <class Key, class Made>
class RecentlyMade {
public:
    template <class Make>
    const Made& Get(const Key& key, const Make& make) {
        constexpr std::size_t most = 4;
        const auto known = std::ranges::find(entries_, key, &Entry::first);
        if (known != entries_.end()) return known->second;
        if (entries_.size() == most) entries_.pop_front();
        return entries_.emplace_back(key, make()).second;
    }

private:
    using Entry = std::pair<Key, Made>;
    std::deque<Entry> entries_;
};

using Picture = std::shared_ptr<const PackedPicture>;
/// A picture that stands on many sheets is one object of the toolkit, so that it is in the job once.
using PrintedPictures = RecentlyMade<Picture, QImage>;

struct Sheet {
    PageOrientation orientation;
    std::vector<std::function<void(QPainter& page, PrintedPictures& pictures)>> drawings;
};

/// False if the device can't be printed on.
bool PrintSheets(const std::vector<Sheet>& sheets, QPagedPaintDevice& device) {
    QPainter page;
    PrintedPictures pictures;
    for (const Sheet& sheet : sheets) {
        device.setPageOrientation(ToQt(sheet.orientation));
        if (page.isActive()) {
            device.newPage();
        } else {
            if (!page.begin(&device)) return false;
            // Outlines stay as crisp as they were drawn.
            page.setRenderHint(QPainter::LosslessImageRendering);
        }
        const double dotsPerTwip = device.logicalDpiX() / twipsPerInch;
        page.setTransform(QTransform::fromScale(dotsPerTwip, dotsPerTwip));
        for (const auto& draw : sheet.drawings)
            draw(page, pictures);
    }
    return true;
}

}  // namespace

SystemPrinters ToolkitPrinters() {
    return {.names =
                [] {
                    std::vector<std::string> names;
                    for (const QString& name : QPrinterInfo::availablePrinterNames())
                        names.push_back(ToUtf8(name));
                    return names;
                },
            .standard = [] { return ToUtf8(QPrinterInfo::defaultPrinterName()); },
            .open = [](const std::string& name) -> std::unique_ptr<QPagedPaintDevice> {
                auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
                printer->setPrinterName(ToQString(name));
                printer->setDocName(ToQString(programTitle));
                printer->setFullPage(true);
                return printer;
            }};
}

/// What is to be printed when the job ends.
struct QtPrinter::Job {
    /// Empty: into the file.
    std::string printer;
    std::vector<Sheet> sheets;
    RecentlyMade<Image, Picture> packed;
};

QtPrinter::QtPrinter(std::filesystem::path folder, SystemPrinters printers)
    : folder_(std::move(folder)), printers_(std::move(printers)) {}

QtPrinter::~QtPrinter() = default;

const std::vector<std::string>& QtPrinter::Listed() const {
    if (!listed_) listed_ = printers_.names();
    return *listed_;
}

bool QtPrinter::IsListed(std::string_view name) const {
    const auto& names = Listed();
    return std::ranges::find(names, name) != names.end();
}

std::vector<std::string> QtPrinter::DeviceNames() const {
    listed_.reset();
    return Listed().empty() ? std::vector{std::string(filePrinter)} : Listed();
}

std::string QtPrinter::DeviceName() const {
    if (Listed().empty()) return std::string(filePrinter);
    if (IsListed(chosen_)) return chosen_;
    const std::string standard = printers_.standard();
    return IsListed(standard) ? standard : Listed().front();
}

void QtPrinter::SelectPrinter(std::string_view name) {
    if (IsListed(name)) chosen_ = name;
}

void QtPrinter::FeedPage() {
    if (!job_) {
        job_ = std::make_unique<Job>();
        if (!Listed().empty()) job_->printer = DeviceName();
        pageIsDue_ = true;
    }
    if (std::exchange(pageIsDue_, false)) job_->sheets.push_back({orientation_, {}});
}

void QtPrinter::Print(double x, double y, const FontProperties& font, Colour colour, std::string_view text) {
    FeedPage();
    job_->sheets.back().drawings.emplace_back(
        [x, y, font, colour, shown = ToQString(text)](QPainter& page, PrintedPictures&) {
            QFont letters = ToQFont(font);
            letters.setPixelSize(std::max(1, static_cast<int>(std::lround(font.FontSize * twipsPerPoint))));
            letters.setHintingPreference(QFont::PreferNoHinting);
            page.setFont(letters);
            page.setPen(ToQColor(colour));
            page.drawText(QPointF(x, y + page.fontMetrics().ascent()), shown);
        });
}

void QtPrinter::PaintPicture(const Image& image, const Rectangle& to) {
    if (image.Empty()) return;
    FeedPage();
    const Picture picture = job_->packed.Get(
        image, [&image] { return std::make_shared<const PackedPicture>(Pack(ToQImage(image))); });
    job_->sheets.back().drawings.emplace_back([picture, to](QPainter& page, PrintedPictures& pictures) {
        page.drawImage(QRectF(to.x, to.y, to.width, to.height),
                       pictures.Get(picture, [&picture] { return Unpack(*picture); }));
    });
}

void QtPrinter::Box(double x1, double y1, double x2, double y2, Colour colour) {
    FeedPage();
    job_->sheets.back().drawings.emplace_back([=](QPainter& page, PrintedPictures&) {
        QPen pen(ToQColor(colour), lineWidth);
        pen.setJoinStyle(Qt::MiterJoin);
        page.setPen(pen);
        page.setBrush(Qt::NoBrush);
        page.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
    });
}

void QtPrinter::NewPage() {
    pageIsDue_ = true;
}

void QtPrinter::EndDoc() {
    const auto job = std::exchange(job_, nullptr);
    if (!job) return;
    if (job->printer.empty()) return PrintToFile(*job);
    // A printer that has gone away meanwhile: the toolkit would print into a file without a word.
    const std::vector<std::string> present = printers_.names();
    if (std::ranges::find(present, job->printer) == present.end()) return;
    if (const auto device = printers_.open(job->printer))
        static_cast<void>(PrintSheets(job->sheets, *device));
}

void QtPrinter::KillDoc() {
    job_.reset();
}

void QtPrinter::PrintToFile(const Job& job) const {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setTitle(ToQString(programTitle));
        writer.setCreator(ToQString(programTitle));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins({});
        if (!PrintSheets(job.sheets, writer)) return;
    }
    const QByteArray& bytes = file.data();
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    static_cast<void>(ReplaceFile(folder_ / fileName, AsBytes(content)));
}

}  // namespace coinlet
