// Where on the paper what is printed lands, and what it looks like there: the sheets are seen by another
// program.

#include "shell/qt_printer.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QRect>

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace coinlet::test {
namespace {

constexpr Colour red = RGB(200, 0, 0), green = RGB(0, 120, 0), blue = RGB(0, 0, 200),
                 grey = RGB(150, 150, 150);

/// A sheet as an eye sees it, with five twips in each of its pixels.
class Paper {
public:
    static constexpr int twipsPerPixel = 5;

    explicit Paper(const QImage& seen) : seen_(seen.convertToFormat(QImage::Format_RGB32)) {}

    double Width() const { return seen_.width() * twipsPerPixel; }
    double Height() const { return seen_.height() * twipsPerPixel; }

    /// The smallest rectangle around all that has that colour, in twips; and how many pixels have it.
    struct Ink {
        double left = 0, top = 0, right = 0, bottom = 0;
        int pixels = 0;
    };
    Ink InkOf(Colour colour) const {
        QRect found;
        int pixels = 0;
        for (int y = 0; y < seen_.height(); ++y) {
            for (int x = 0; x < seen_.width(); ++x) {
                if (!IsLike(seen_.pixel(x, y), colour)) continue;
                found |= QRect(x, y, 1, 1);
                ++pixels;
            }
        }
        const auto twips = [](int place) { return static_cast<double>(place * twipsPerPixel); };
        return {twips(found.left()), twips(found.top()), twips(found.right() + 1), twips(found.bottom() + 1),
                pixels};
    }
    bool IsBlankAt(double x, double y) const { return IsLike(At(x, y), white); }
    bool IsColouredAt(double x, double y, Colour colour) const { return IsLike(At(x, y), colour); }

private:
    QRgb At(double x, double y) const {
        return seen_.pixel(static_cast<int>(x / twipsPerPixel), static_cast<int>(y / twipsPerPixel));
    }
    static bool IsLike(QRgb seen, Colour colour) {
        constexpr int most = 20;
        return std::abs(qRed(seen) - Red(colour)) <= most && std::abs(qGreen(seen) - Green(colour)) <= most &&
               std::abs(qBlue(seen) - Blue(colour)) <= most;
    }

    QImage seen_;
};

/// The left half green, the right half blue.
Image TwoHalves() {
    Bitmap bitmap(20, 10);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x)
            bitmap.Row(y)[x] = ToPixel(x < 10 ? green : blue);
    }
    return Image(std::move(bitmap));
}

/// What is printed on.
enum class Target { File, PrinterWithMargins };
void PrintTo(Target target, std::ostream* out) {
    *out << (target == Target::File ? "file" : "printer with margins");
}

class PrintedSheets : public testing::TestWithParam<Target> {
protected:
    /// One of the sheets, counted from 1, once the job has ended.
    Paper Sheet(int number) const {
        const std::string page = std::to_string(number), seen = (folder.Path() / ("sheet" + page)).string();
        const std::string resolution = std::to_string(1440 / Paper::twipsPerPixel);
        EXPECT_EQ(
            QProcess::execute("pdftoppm", {"-png", "-singlefile", "-r", resolution.c_str(), "-f",
                                           page.c_str(), "-l", page.c_str(), file.c_str(), seen.c_str()}),
            0);
        return Paper(QImage(QString::fromStdString(seen + ".png")));
    }
    /// Places are those of the middle of a line that is half a point wide.
    static void ExpectBox(const Paper& paper, Colour colour, double left, double top, double right,
                          double bottom) {
        constexpr double half = 5;
        ExpectInk(paper, colour, left - half, top - half, right + half, bottom + half);
        EXPECT_TRUE(paper.IsBlankAt((left + right) / 2, (top + bottom) / 2));
        for (const double x : {left, right})
            EXPECT_TRUE(paper.IsColouredAt(x, (top + bottom) / 2, colour)) << x;
        for (const double y : {top, bottom})
            EXPECT_TRUE(paper.IsColouredAt((left + right) / 2, y, colour)) << y;
    }
    /// To a pixel or two at each side, whichever of them a renderer gives an edge to.
    static void ExpectInk(const Paper& paper, Colour colour, double left, double top, double right,
                          double bottom) {
        constexpr double most = 2 * Paper::twipsPerPixel;
        const Paper::Ink ink = paper.InkOf(colour);
        EXPECT_NEAR(ink.left, left, most);
        EXPECT_NEAR(ink.top, top, most);
        EXPECT_NEAR(ink.right, right, most);
        EXPECT_NEAR(ink.bottom, bottom, most);
    }

    TemporaryFolder folder;
    std::string file = (folder.Path() / "Coinlet.pdf").string();
    QtPrinter printer{folder.Path(), PrintersOf(GetParam())};

private:
    /// A system without printers, or one with a printer of the toolkit that by itself begins to print two
    /// centimetres from the corner of an A4 sheet.
    SystemPrinters PrintersOf(Target target) const {
        if (target == Target::File) {
            return {.names = [] { return std::vector<std::string>(); },
                    .standard = [] { return std::string(); },
                    .open = ToolkitPrinters().open};
        }
        return {.names = [] { return std::vector<std::string>{"Office"}; },
                .standard = [] { return std::string("Office"); },
                .open =
                    [this](const std::string& name) {
                        std::unique_ptr<QPagedPaintDevice> device = ToolkitPrinters().open(name);
                        dynamic_cast<QPrinter&>(*device).setOutputFileName(QString::fromStdString(file));
                        device->setPageSize(QPageSize(QPageSize::A4));
                        device->setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
                        return device;
                    }};
    }
};
INSTANTIATE_TEST_SUITE_P(On, PrintedSheets, testing::Values(Target::File, Target::PrinterWithMargins));

TEST_P(PrintedSheets, BoxesStandWhereTheyWerePut) {
    printer.Box(1440, 2880, 4320, 7200, red);
    // Corners may be told the other way round, and the sheet's own edge is not out of reach.
    printer.Box(11000, 16000, 300, 450, grey);
    printer.EndDoc();
    const Paper paper = Sheet(1);
    // 210 by 297 millimetres.
    EXPECT_NEAR(paper.Width(), 11906, 20);
    EXPECT_NEAR(paper.Height(), 16838, 20);
    ExpectBox(paper, red, 1440, 2880, 4320, 7200);
    ExpectInk(paper, grey, 295, 445, 11005, 16005);
}

TEST_P(PrintedSheets, PicturesFillTheirPlaces) {
    printer.PaintPicture(TwoHalves(), {6000, 1000, 2800, 1400});
    printer.EndDoc();
    const Paper paper = Sheet(1);
    ExpectInk(paper, green, 6000, 1000, 7400, 2400);
    ExpectInk(paper, blue, 7400, 1000, 8800, 2400);
    EXPECT_TRUE(paper.IsColouredAt(6700, 1700, green));
    EXPECT_TRUE(paper.IsColouredAt(8100, 1700, blue));
}

// A letter of an inch hangs from the place it was put at. Its capital is about seven tenths of it high, with
// two tenths above, in whichever font stands for the one that was wanted.
TEST_P(PrintedSheets, TextsHangFromTheirPlaces) {
    const FontProperties plain{.FontName = "Arial", .FontSize = 72};
    const FontProperties bold{.FontName = "Arial", .FontSize = 72, .FontBold = true};
    printer.Print(1440, 9000, plain, green, "H");
    printer.Print(5760, 3000, bold, red, "H");
    printer.Print(8640, 3000, {.FontName = "Arial", .FontSize = 36}, blue, "H");
    printer.EndDoc();
    const Paper paper = Sheet(1);
    const auto expectLetter = [&](Colour colour, double x, double y, double size) {
        SCOPED_TRACE(x);
        const Paper::Ink ink = paper.InkOf(colour);
        EXPECT_GE(ink.left, x);
        EXPECT_LE(ink.left, x + 0.2 * size);
        EXPECT_NEAR(ink.top, y + 0.2 * size, 0.1 * size);
        EXPECT_NEAR(ink.bottom - ink.top, 0.7 * size, 0.1 * size);
        EXPECT_NEAR(ink.right - ink.left, 0.6 * size, 0.1 * size);
        return ink.pixels;
    };
    const int thin = expectLetter(green, 1440, 9000, 1440);
    const int thick = expectLetter(red, 5760, 3000, 1440);
    expectLetter(blue, 8640, 3000, 720);
    EXPECT_GT(thick, thin * 5 / 4);
}

TEST_P(PrintedSheets, EverySheetHasItsOwnWayUp) {
    printer.Box(1000, 15000, 2000, 16000, red);
    printer.NewPage();
    printer.SetOrientation(PageOrientation::Landscape);
    printer.Box(13620, 6990, 16400, 11400, red);
    printer.PaintPicture(TwoHalves(), {600, 1500, 9000, 9000});
    printer.NewPage();
    printer.SetOrientation(PageOrientation::Portrait);
    printer.Box(300, 15000, 11400, 16400, red);
    printer.EndDoc();
    ExpectBox(Sheet(1), red, 1000, 15000, 2000, 16000);
    const Paper second = Sheet(2);
    EXPECT_NEAR(second.Width(), 16838, 20);
    EXPECT_NEAR(second.Height(), 11906, 20);
    ExpectBox(second, red, 13620, 6990, 16400, 11400);
    ExpectInk(second, green, 600, 1500, 5100, 10500);
    ExpectInk(second, blue, 5100, 1500, 9600, 10500);
    const Paper third = Sheet(3);
    EXPECT_NEAR(third.Width(), 11906, 20);
    ExpectBox(third, red, 300, 15000, 11400, 16400);
}

}  // namespace
}  // namespace coinlet::test
