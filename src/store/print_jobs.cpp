#include "store/print_jobs.h"

#include "base/clock.h"
#include "base/files.h"
#include "base/program_folders.h"
#include "controls/file_boxes.h"
#include "core/clipart_library.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/side_panel.h"
#include "store/design_files.h"
#include "surface/codecs.h"
#include "surface/printer.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace coinlet {

namespace {

constexpr Colour headerColour = RGB(90, 0, 0), infoTextColour = RGB(0, 80, 0), boxColour = RGB(150, 150, 150);

const FontProperties headerFont{.FontName = "Arial", .FontSize = 10, .FontBold = true};
const FontProperties infoTextFont{.FontName = "Arial", .FontSize = 9, .FontBold = true};
const FontProperties nameFont{.FontName = "Arial", .FontSize = 7};

/// A job under way; the next one is a job of its own. What was printed so far comes out however it ends,
/// unless the program ends before it: then nothing does.
class PrintJob {
public:
    PrintJob(const Services& services, PageOrientation orientation) : services_(services) {
        services_.printer.SetOrientation(orientation);
    }
    ~PrintJob() {
        if (services_.platform.Ended()) {
            services_.printer.KillDoc();
        } else {
            services_.printer.EndDoc();
        }
    }
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

private:
    const Services& services_;
};

/// The first line of a sheet: when it was printed, and what it shows.
std::string Header(const Clock& clock, const std::string& what) {
    const DateTime now = clock.Now();
    return FormatTimeWithLeadingZero(now) + " / " + FormatDate(now) + " / " + what;
}

/// The rows are neither wrapped nor limited: what finds no room on the sheet falls off it.
void PrintInfoText(Printer& printer, const ListBox& rows) {
    constexpr double left = 10200, top = 8700, lineHeight = 210;
    for (int i = 0; i < rows.ListCount(); ++i)
        printer.Print(left, top + i * lineHeight, infoTextFont, infoTextColour, rows.List(i));
}

/// How the pictures of a folder stand on the sheets: from left to right, then down. All in twips.
struct SheetLayout {
    double firstTop;  ///< Of the first sheet, below its header if it has one.
    double nextTop;   ///< Of further sheets.
    double width, height;
    double pitch;       ///< From a picture to the next one at its right.
    double nameOffset;  ///< From the top of a picture to its name.
};
constexpr SheetLayout designSheets{1500, 300, 1800, 1290, 2340, 1380};
constexpr SheetLayout clipartSheets{450, 450, 5400, 1200, 5610, 1290};

constexpr double sheetLeft = 300, rowPitch = 1800, lastLeft = 10000, lastTop = 15000;

/// Prints the pictures in `files` with their names; `finish(x, y)` adds what else belongs to each.
template <class Finish>
void PrintPictures(const Context& context, const SheetLayout& sheets, const FileListBox& files,
                   Surface& picture, const Finish& finish) {
    Printer& printer = context.services.printer;
    double x = sheetLeft, y = sheets.firstTop;
    for (int i = 0; i < files.ListCount(); ++i) {
        const std::string& file = files.List(i);
        if (const auto loaded = LoadPicture(fs::path(files.Path()) / file, context.services.codecs))
            picture.SetPicture(*loaded);
        printer.PaintPicture(picture.Image(), {x, y, sheets.width, sheets.height});
        printer.Print(x, y + sheets.nameOffset, nameFont, black, WithoutExtension(file));
        finish(x, y);
        x += sheets.pitch;
        if (x > lastLeft) {
            x = sheetLeft;
            y += rowPitch;
        }
        if (y > lastTop) {
            printer.NewPage();
            y = sheets.nextTop;
        }
    }
}

void ListFolder(FileListBox& files, const Context& context, std::string_view folder,
                std::string_view pattern) {
    files.SetPattern(std::string(pattern));
    files.SetPath((context.services.applicationFolder / folder).string());
}

bool UserWantsPages(Platform& platform, int files) {
    constexpr int sheetsAPage = 18;
    const std::string pages = std::to_string(files / sheetsAPage + 1);
    const std::string total = std::to_string(clipartsASheet * files);
    return platform.ShowMessage(
               {.prompt = "Printing of " + pages + " Pages (A4), total " + total + " Cliparts.",
                .title = "Printing Cliparts",
                .buttons = MessageButtons::YesNo,
                .icon = MessageIcon::Question,
                .standard = Answer::Yes}) == Answer::Yes;
}

}  // namespace

void PrintDesign(const Context& context, double copies, bool withInfoText) {
    // A slip of the finger empties no paper tray.
    constexpr double mostCopies = 999;
    const MainForm& main = context.main;
    Printer& printer = context.services.printer;
    const PrintJob job(context.services, PageOrientation::Landscape);
    for (int copy = 1; copy <= std::min(copies, mostCopies); ++copy) {
        printer.Print(600, 600, headerFont, headerColour,
                      Header(context.services.clock, main.Label2.Caption));
        printer.PaintPicture(main.Pic.surface.Image(), {600, 1500, 9000, 9000});
        printer.PaintPicture(main.InfoPic.surface.Image(),
                             {11100, 900, sidePanelWidth * twipsPerPixel, sidePanelHeight * twipsPerPixel});
        printer.Print(13620, 6990, headerFont, headerColour, "Coin Back");
        if (withInfoText) PrintInfoText(printer, main.List2);
        printer.NewPage();
    }
}

void PrintAllDesigns(const Context& context, FileListBox& files, Surface& picture) {
    Printer& printer = context.services.printer;
    ListFolder(files, context, program_folder::designs, "*" + std::string(designPicture));
    const PrintJob job(context.services, PageOrientation::Portrait);
    printer.Print(sheetLeft, 600, headerFont, headerColour,
                  Header(context.services.clock, std::to_string(files.ListCount()) + " Designs"));
    PrintPictures(context, designSheets, files, picture, [](double, double) {});
}

void PrintAllCliparts(const Context& context, FileListBox& files, Surface& picture) {
    constexpr double boxHeight = 1260;
    Printer& printer = context.services.printer;
    ListFolder(files, context, program_folder::cliparts, clipartSheetPattern);
    if (!UserWantsPages(context.services.platform, files.ListCount())) return;
    const PrintJob job(context.services, PageOrientation::Portrait);
    printer.FeedPage();  // A library without a sheet is an empty page.
    PrintPictures(context, clipartSheets, files, picture, [&](double x, double y) {
        printer.Box(x, y, x + clipartSheets.width, y + boxHeight, boxColour);
        context.services.platform.DoEvents();
    });
}

}  // namespace coinlet
