// What else the shell does for the program: clipboard, printer, screen, desktop.

#include "sample_form.h"
#include "shell/qt_clipboard.h"
#include "shell/qt_desktop.h"
#include "shell/qt_printer.h"
#include "shell/qt_screen_grab.h"
#include "support/temporary_folder.h"
#include "user.h"

#include <QCoreApplication>
#include <QCursor>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QProcess>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace coinlet::test {
namespace {

/// Every pixel another colour: red counts columns, green counts rows.
Image Ramp(int width, int height) {
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            bitmap.Row(y)[x] = ToPixel(RGB(x, y, 77));
    return Image(std::move(bitmap));
}

class ShellServices : public ShellTest {
protected:
    SampleForm form{services};
};

TEST_F(ShellServices, ClipboardHandsThePictureToAnotherProgram) {
    const TemporaryFolder folder;
    const auto file = folder.Path() / "taken.png";
    Run(form, [&](User& user) {
        user.Has([] { QtClipboard().SetImage(Ramp(60, 40)); });
        EXPECT_EQ(QProcess::execute(QCoreApplication::applicationFilePath(),
                                    {"--save-clipboard", QString::fromStdString(file.string())}),
                  0);
        user.Has([] { EXPECT_EQ(QtClipboard().GetImage(), Ramp(60, 40)); });
    });
    const QImage taken(QString::fromStdString(file.string()));
    ASSERT_EQ(taken.size(), QSize(60, 40));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(taken.pixel(x, y), qRgb(x, y, 77));
}

std::string Content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// How often a sheet is described in a PDF file.
int Sheets(const std::string& pdf) {
    int count = 0;
    for (auto at = pdf.find("/Type /Page\n"); at != std::string::npos; at = pdf.find("/Type /Page\n", at + 1))
        ++count;
    return count;
}

TEST(QtPrinterTest, PrintsToAFileWhereThereIsNoPrinter) {
    const TemporaryFolder folder;
    const auto pictures = folder.Path() / "Pictures";
    std::filesystem::create_directory(pictures);
    QtPrinter printer(pictures);
    ASSERT_EQ(printer.DeviceNames(), std::vector<std::string>{"PDF"});
    EXPECT_EQ(printer.DeviceName(), "PDF");
    printer.SelectPrinter("No such printer");
    EXPECT_EQ(printer.DeviceName(), "PDF");

    printer.Print(300, 300, {}, black, "Coinlet");
    printer.PaintPicture(Ramp(20, 20), {300, 600, 2000, 2000});
    printer.Box(300, 3000, 2300, 4000, black);
    printer.NewPage();
    printer.Print(300, 300, {}, black, "Second sheet");
    printer.NewPage();
    printer.EndDoc();

    const std::string pdf = Content(pictures / "Coinlet.pdf");
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_EQ(Sheets(pdf), 2);                                     // Nothing is drawn on a third.
    EXPECT_NE(pdf.find("/MediaBox [0 0 595"), std::string::npos);  // A4 is 595 by 842 points.
}

TEST(QtPrinterTest, MissingFolderStaysMissing) {
    const TemporaryFolder folder;
    QtPrinter printer(folder.Path() / "Pictures");
    printer.Box(0, 0, 100, 100, black);
    printer.EndDoc();
    EXPECT_EQ(folder.Count(), 0);
}

TEST(QtPrinterTest, EmptyJobLeavesNoFile) {
    const TemporaryFolder folder;
    QtPrinter printer(folder.Path());
    printer.NewPage();
    printer.EndDoc();
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "Coinlet.pdf"));
}

TEST(QtPrinterTest, SheetIsFedWithNothingOnIt) {
    const TemporaryFolder folder;
    QtPrinter printer(folder.Path());
    printer.FeedPage();
    printer.FeedPage();  // It is there already.
    printer.EndDoc();
    EXPECT_EQ(Sheets(Content(folder.Path() / "Coinlet.pdf")), 1);
}

TEST(QtPrinterTest, EarlierFileStandsUntilTheJobIsWhole) {
    const TemporaryFolder folder;
    const auto file = folder.Write("Coinlet.pdf", "of an earlier job");
    QtPrinter printer(folder.Path());
    printer.Box(0, 0, 100, 100, black);
    EXPECT_EQ(Content(file), "of an earlier job");
    EXPECT_EQ(folder.Count(), 1);
    printer.EndDoc();
    EXPECT_EQ(Content(file).substr(0, 5), "%PDF-");
    EXPECT_EQ(folder.Count(), 1);
}

TEST(QtPrinterTest, SamePictureOnManySheetsIsInTheFileOnce) {
    const TemporaryFolder folder;
    QtPrinter printer(folder.Path());
    const Image picture = Ramp(200, 200), other = Ramp(100, 200);
    for (int sheet = 0; sheet < 5; ++sheet) {
        printer.PaintPicture(picture, {0, 0, 3000, 3000});
        printer.PaintPicture(other, {4000, 0, 3000, 3000});
        printer.NewPage();
    }
    printer.EndDoc();
    const std::string pdf = Content(folder.Path() / "Coinlet.pdf");
    EXPECT_EQ(Sheets(pdf), 5);
    int pictures = 0;
    for (auto at = pdf.find("/Subtype /Image"); at != std::string::npos;
         at = pdf.find("/Subtype /Image", at + 1))
        ++pictures;
    EXPECT_EQ(pictures, 2);
}

TEST(QtPrinterTest, JobThatIsGivenUpLeavesNothing) {
    const TemporaryFolder folder;
    const auto file = folder.Write("Coinlet.pdf", "of an earlier job");
    {
        QtPrinter printer(folder.Path());
        printer.Box(0, 0, 100, 100, black);
        printer.NewPage();
        printer.Print(300, 300, {}, black, "Coinlet");
        printer.KillDoc();
        printer.EndDoc();
        EXPECT_EQ(Content(file), "of an earlier job");
        // The next one is a job of its own.
        printer.FeedPage();
        printer.EndDoc();
        EXPECT_EQ(Sheets(Content(file)), 1);
        folder.Write("Coinlet.pdf", "of an earlier job");
        printer.Box(0, 0, 100, 100, black);
    }
    // Nor does one that the printer itself is gone in.
    EXPECT_EQ(Content(file), "of an earlier job");
    EXPECT_EQ(folder.Count(), 1);
}

/// Printers that a test plugs in and out; they print on A5 paper, into files of their names.
struct Office {
    SystemPrinters Printers() {
        return {.names = [this] { return names; },
                .standard = [this] { return standard; },
                .open = [this](const std::string& name) -> std::unique_ptr<QPagedPaintDevice> {
                    const std::string file = (folder.Path() / (name + ".pdf")).string();
                    auto device = std::make_unique<QPdfWriter>(QString::fromStdString(file));
                    device->setPageSize(QPageSize(QPageSize::A5));
                    return device;
                }};
    }
    std::string Printed(const std::string& name) const { return Content(folder.Path() / (name + ".pdf")); }

    TemporaryFolder folder;
    std::vector<std::string> names{"First", "Second", "Third"};
    std::string standard = "Second";
};

TEST(QtPrinterTest, StandardPrinterIsTheCurrentOneUntilAnotherIsChosen) {
    Office office;
    QtPrinter printer(office.folder.Path(), office.Printers());
    EXPECT_EQ(printer.DeviceNames(), office.names);
    EXPECT_EQ(printer.DeviceName(), "Second");
    printer.SelectPrinter("Fourth");
    EXPECT_EQ(printer.DeviceName(), "Second");
    printer.SelectPrinter("Third");
    EXPECT_EQ(printer.DeviceName(), "Third");
    printer.Box(0, 0, 100, 100, black);
    EXPECT_EQ(office.folder.Count(), 0);
    printer.EndDoc();
    EXPECT_EQ(Sheets(office.Printed("Third")), 1);
    EXPECT_EQ(office.folder.Count(), 1);
    office.standard.clear();
    EXPECT_EQ(QtPrinter(office.folder.Path(), office.Printers()).DeviceName(), "First");
}

TEST(QtPrinterTest, PaperOfAPrinterIsItsOwn) {
    Office office;
    QtPrinter printer(office.folder.Path(), office.Printers());
    printer.SetOrientation(PageOrientation::Landscape);
    printer.Box(0, 0, 100, 100, black);
    printer.NewPage();
    printer.Box(0, 0, 100, 100, black);
    printer.EndDoc();
    EXPECT_EQ(Sheets(office.Printed("Second")), 2);
    // A5 is 420 by 595 points.
    EXPECT_NE(office.Printed("Second").find("/MediaBox [0 0 595"), std::string::npos);
}

TEST(QtPrinterTest, PrinterThatHasGoneAwayPrintsNothingAnywhere) {
    Office office;
    QtPrinter printer(office.folder.Path(), office.Printers());
    printer.SelectPrinter("Third");
    const auto names = std::exchange(office.names, {});
    // As it was listed last.
    EXPECT_EQ(printer.DeviceName(), "Third");
    printer.Box(0, 0, 100, 100, black);
    printer.EndDoc();
    EXPECT_EQ(office.folder.Count(), 0);
    // The last one gone while the job is under way.
    office.names = names;
    printer.Box(0, 0, 100, 100, black);
    office.names = {"First"};
    printer.EndDoc();
    EXPECT_EQ(office.folder.Count(), 0);
}

TEST(QtPrinterTest, ListIsReadAnewEachTime) {
    Office office;
    QtPrinter printer(office.folder.Path(), office.Printers());
    printer.SelectPrinter("Third");
    office.names = {"First", "Fourth"};
    office.standard = "Fourth";
    EXPECT_EQ(printer.DeviceNames(), office.names);
    EXPECT_EQ(printer.DeviceName(), "Fourth");
    office.names.clear();
    EXPECT_EQ(printer.DeviceNames(), std::vector<std::string>{"PDF"});
    EXPECT_EQ(printer.DeviceName(), "PDF");
    printer.FeedPage();
    printer.EndDoc();
    EXPECT_EQ(Sheets(office.Printed("Coinlet")), 1);
    // Plugged in again it is the chosen one.
    office.names = {"First", "Third"};
    EXPECT_EQ(printer.DeviceNames(), office.names);
    EXPECT_EQ(printer.DeviceName(), "Third");
}

TEST(QtPrinterTest, LandscapeTurnsTheSheet) {
    const TemporaryFolder folder;
    QtPrinter printer(folder.Path());
    printer.SetOrientation(PageOrientation::Landscape);
    printer.Box(0, 0, 100, 100, black);
    printer.EndDoc();
    EXPECT_NE(Content(folder.Path() / "Coinlet.pdf").find("/MediaBox [0 0 842"), std::string::npos);
}

TEST(QtPrinterTest, FolderThatCannotBeMadePrintsNothing) {
    const TemporaryFolder folder;
    std::ofstream(folder.Path() / "file") << "in the way";
    QtPrinter printer(folder.Path() / "file" / "Pictures");
    printer.Print(300, 300, {}, black, "Coinlet");
    printer.EndDoc();
    EXPECT_EQ(Content(folder.Path() / "file"), "in the way");
}

TEST_F(ShellServices, ScreenIsSeenAroundThePointer) {
    Run(form, [&](User& user) {
        const QPoint place = user.PlaceOf(form.Pic, 100, 100);
        user.MoveTo(place);
        user.Has([&] {
            int x = 0, y = 0;
            QtScreenGrab().GetCursorPos(&x, &y);
            EXPECT_EQ(QPoint(x, y), place);
        });
        const QPoint edge = user.PlaceOf(form.Pic, 150, 10);
        EXPECT_EQ(user.ColourAt(edge), RGB(200, 0, 0));
        user.Has([&] {
            const Image seen = QtScreenGrab().Grab({edge.x() - 1, edge.y() - 1, edge.x() + 3, edge.y() + 2});
            ASSERT_EQ(seen.Width(), 4);
            ASSERT_EQ(seen.Height(), 3);
            EXPECT_EQ(seen.At(0, 0), white);
            EXPECT_EQ(seen.At(1, 1), RGB(200, 0, 0));
            EXPECT_EQ(seen.At(1, 2), RGB(200, 0, 0));
            EXPECT_EQ(seen.At(2, 2), white);
        });
    });
}

TEST_F(ShellServices, BeyondTheScreenAllIsWhite) {
    const Image seen = QtScreenGrab().Grab({-20, -20, -10, -5});
    ASSERT_EQ(seen.Width(), 10);
    EXPECT_EQ(seen.At(9, 14), white);
    EXPECT_TRUE(QtScreenGrab().Grab({5, 5, 5, 9}).Empty());
}

TEST_F(ShellServices, ScreenFactsAreThoseOfTheDisplay) {
    EXPECT_EQ(platform.Screen.DotsPerInch, 96);
    EXPECT_EQ(platform.Screen.Width, 1400);
    EXPECT_EQ(platform.Screen.Height, 1050);
}

TEST(QtDesktopTest, KnowsTheUser) {
    EXPECT_FALSE(QtDesktop().UserName().empty());
    EXPECT_TRUE(QtDesktop().PictureFolder().is_absolute());
}

}  // namespace
}  // namespace coinlet::test
