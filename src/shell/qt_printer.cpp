#include "shell/qt_printer.h"

#include "base/files.h"
#include "shell/look.h"
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
#include <system_error>
#include <utility>

namespace coinlet {

namespace {

constexpr std::string_view fileName = "Coinlet.pdf";
constexpr std::string_view filePrinter = "PDF";
const QString documentName = QStringLiteral("Coinlet Designer");
constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr double lineWidth = 10;  // Twips: half a point.

QPageLayout::Orientation ToQt(PageOrientation orientation) {
    return orientation == PageOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// A printer of the system. Places count from the corner of the sheet, not from where the printer's margin
/// ends.
std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& name) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(name);
    printer->setDocName(documentName);
    printer->setFullPage(true);
    return printer;
}

std::unique_ptr<QPagedPaintDevice> WritePdf(QIODevice& file) {
    auto writer = std::make_unique<QPdfWriter>(&file);
    writer->setTitle(documentName);
    writer->setCreator(documentName);
    writer->setPageMargins({});
    return writer;
}

}  // namespace

/// What is printed on until the job ends.
struct QtPrinter::Job {
    explicit Job(const std::string& printer) {
        const QString name = ToQString(printer);
        if (QPrinterInfo::printerInfo(name).isNull()) {
            file.open(QIODevice::WriteOnly);
            device = WritePdf(file);
        } else {
            device = OpenPrinter(name);
        }
    }

    /// The picture as the toolkit's. One that comes again soon is the same object, so that it stands in the
    /// job once, however many sheets show it.
    QImage ToPrint(const Image& image) {
        constexpr std::size_t mostRecent = 4;
        const auto known = std::ranges::find(recent, image, &Recent::image);
        if (known != recent.end()) return known->printed;
        if (recent.size() == mostRecent) recent.pop_front();
        return recent.emplace_back(image, ToQImage(image)).printed;
    }

    struct Recent {
        Image image;
        QImage printed;
        Recent(const Image& ours, const QImage& theirs) : image(ours), printed(theirs) {}
    };
    std::deque<Recent> recent;
    QBuffer file;  ///< Of a job without a printer: stays in memory until it is whole.
    std::unique_ptr<QPagedPaintDevice> device;
    QPainter painter;
};

QtPrinter::QtPrinter(std::filesystem::path folder) : folder_(std::move(folder)) {}

QtPrinter::~QtPrinter() {
    EndDoc();
}

const std::vector<std::string>& QtPrinter::Names() const {
    if (names_) return *names_;
    names_.emplace();
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names_->push_back(ToUtf8(name));
    if (names_->empty()) names_->emplace_back(filePrinter);
    return *names_;
}

std::vector<std::string> QtPrinter::DeviceNames() const {
    return Names();
}

std::string QtPrinter::DeviceName() const {
    if (!chosen_.empty()) return chosen_;
    const std::string standard = ToUtf8(QPrinterInfo::defaultPrinterName());
    const auto& names = Names();
    return std::ranges::find(names, standard) == names.end() ? names.front() : standard;
}

void QtPrinter::SelectPrinter(std::string_view name) {
    const auto& names = Names();
    if (std::ranges::find(names, name) != names.end()) chosen_ = name;
}

bool QtPrinter::StartJob() {
    auto job = std::make_unique<Job>(DeviceName());
    job->device->setPageSize(QPageSize(QPageSize::A4));
    job->device->setPageOrientation(ToQt(orientation_));
    if (!job->painter.begin(job->device.get())) return false;
    // Outlines stay as crisp as they were drawn.
    job->painter.setRenderHint(QPainter::LosslessImageRendering);
    job_ = std::move(job);
    return true;
}

QPainter* QtPrinter::Page() {
    if (!job_ && !StartJob()) return nullptr;
    if (std::exchange(pageIsDue_, false)) {
        job_->device->setPageOrientation(ToQt(orientation_));
        job_->device->newPage();
    }
    const double dotsPerTwip = job_->device->logicalDpiX() / twipsPerInch;
    job_->painter.setTransform(QTransform::fromScale(dotsPerTwip, dotsPerTwip));
    return &job_->painter;
}

void QtPrinter::Print(double x, double y, const FontProperties& font, Colour colour, std::string_view text) {
    QPainter* page = Page();
    if (!page) return;
    QFont letters = ToQFont(font);
    letters.setPixelSize(std::max(1, static_cast<int>(std::lround(font.FontSize * twipsPerPoint))));
    letters.setHintingPreference(QFont::PreferNoHinting);
    page->setFont(letters);
    page->setPen(ToQColor(colour));
    page->drawText(QPointF(x, y + page->fontMetrics().ascent()), ToQString(text));
}

void QtPrinter::PaintPicture(const Image& image, const Rectangle& to) {
    if (image.Empty()) return;
    if (QPainter* page = Page())
        page->drawImage(QRectF(to.x, to.y, to.width, to.height), job_->ToPrint(image));
}

void QtPrinter::Box(double x1, double y1, double x2, double y2, Colour colour) {
    QPainter* page = Page();
    if (!page) return;
    QPen pen(ToQColor(colour), lineWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    page->setPen(pen);
    page->setBrush(Qt::NoBrush);
    page->drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void QtPrinter::NewPage() {
    pageIsDue_ = job_ != nullptr;
}

void QtPrinter::EndDoc() {
    pageIsDue_ = false;
    const auto job = std::exchange(job_, nullptr);
    if (!job) return;
    job->painter.end();
    if (job->file.data().isEmpty()) return;
    std::error_code failed;
    std::filesystem::create_directories(folder_, failed);
    const QByteArray& bytes = job->file.data();
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    static_cast<void>(ReplaceFile(folder_ / fileName, AsBytes(content)));
}

}  // namespace coinlet
