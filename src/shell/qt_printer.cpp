#include "shell/qt_printer.h"

#include "shell/look.h"
#include "shell/qt_image.h"
#include "shell/qt_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>
#include <system_error>

namespace coinlet {

namespace {

constexpr std::string_view fileName = "Coinlet.pdf";
constexpr std::string_view filePrinter = "PDF";
constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr double lineWidth = 10;  // Twips: half a point.

}  // namespace

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
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    const std::string name = DeviceName();
    const bool toFile = QPrinterInfo::printerInfo(ToQString(name)).isNull();
    if (toFile) {
        std::error_code failed;
        std::filesystem::create_directories(folder_, failed);
        printer_->setOutputFormat(QPrinter::PdfFormat);
        printer_->setOutputFileName(ToQString((folder_ / fileName).string()));
    } else {
        printer_->setPrinterName(ToQString(name));
    }
    printer_->setDocName(QStringLiteral("Coinlet Designer"));
    printer_->setPageSize(QPageSize(QPageSize::A4));
    // Places count from the corner of the sheet, not from where the printer's margin ends.
    printer_->setFullPage(true);
    ApplyOrientation();
    painter_ = std::make_unique<QPainter>();
    if (painter_->begin(printer_.get())) return true;
    painter_.reset();
    printer_.reset();
    return false;
}

void QtPrinter::ApplyOrientation() {
    printer_->setPageOrientation(orientation_ == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                            : QPageLayout::Portrait);
}

QPainter* QtPrinter::Page() {
    if (!painter_ && !StartJob()) return nullptr;
    if (std::exchange(pageIsDue_, false)) {
        ApplyOrientation();
        printer_->newPage();
    }
    const double dotsPerTwip = printer_->resolution() / twipsPerInch;
    painter_->setTransform(QTransform::fromScale(dotsPerTwip, dotsPerTwip));
    return painter_.get();
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
    if (QPainter* page = Page()) page->drawImage(QRectF(to.x, to.y, to.width, to.height), ToQImage(image));
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
    pageIsDue_ = painter_ != nullptr;
}

void QtPrinter::EndDoc() {
    if (painter_) painter_->end();
    painter_.reset();
    printer_.reset();
    pageIsDue_ = false;
}

}  // namespace coinlet
