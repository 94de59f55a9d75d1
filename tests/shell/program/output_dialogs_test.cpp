// Printing and the catalogue by pointer and keys, as far as the files that come of it.

#include "base/files.h"
#include "started_program.h"

#include <string>

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000;

// In the dialogs, from their upper left corner.
const QPoint middleOfPreview(84, 84), printAllCliparts(176, 70), printButton(220, 226);
const QPoint firstNumber(60, 20), saveButton(320, 376), deleteButton(320, 304);

class ProgramOutput : public StartedProgram {
protected:
    void SetUp() override { Start(); }

    std::string Content(const fs::path& name) const {
        const auto bytes = ReadFile(folder / name);
        return bytes ? std::string(bytes->begin(), bytes->end()) : "(no file)";
    }
    bool Holds(const fs::path& name, const std::string& content) const {
        return Comes([&] { return Content(name) == content; });
    }
    /// How often a sheet is described in what was printed.
    int PrintedSheets() const {
        const fs::path file = "home/Pictures/Coinlet.pdf";
        EXPECT_TRUE(Comes([&] { return FileExists(folder / file); }));
        const std::string pdf = Content(file), sheet = "/Type /Page\n";
        int count = 0;
        for (auto at = pdf.find(sheet); at != std::string::npos; at = pdf.find(sheet, at + 1))
            ++count;
        return count;
    }
    OpenWindow OpenPrinting() {
        Key("ctrl+p");
        const OpenWindow dialog = Front();
        EXPECT_EQ(screen.TitleOf(dialog), "Print Coinlet (PDF)");
        return dialog;
    }
};

TEST_F(ProgramOutput, CopiesOfTheDesignArePrintedByKeys) {
    // The widest pen, across the middle of the canvas.
    Click(form.HScroll1, form.HScroll1.PixelWidth() - 20, 8);
    Click(form.Knop[0], 20, 14);
    MoveTo(PlaceOf(form.Pic, 50, 250));
    Press();
    MoveTo(PlaceOf(form.Pic, 450, 250));
    Release();
    const OpenWindow dialog = OpenPrinting();
    EXPECT_TRUE(Comes([&] { return ColourAt(dialog.place.topLeft() + middleOfPreview) == ink; }));
    // The number of copies has the keys, its text selected.
    Key("3");
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_EQ(PrintedSheets(), 3);
}

TEST_F(ProgramOutput, ClipartsArePrintedOnceTheUserHasAgreed) {
    const OpenWindow dialog = OpenPrinting();
    Click(dialog.place.topLeft() + printAllCliparts);
    Click(dialog.place.topLeft() + printButton);
    EXPECT_EQ(screen.TitleOf(Front(1)), "Printing Cliparts");
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_EQ(PrintedSheets(), 3);  // The 46 sheets of the library, 18 on a page.
}

TEST_F(ProgramOutput, CatalogueKeepsWhatIsTyped) {
    Choose(OpenMenu(form.View), form.ViewMyCollection);
    const OpenWindow dialog = Front();
    ASSERT_EQ(screen.TitleOf(dialog), "My Collection");
    for (const char* number : {"72", "15", "8"}) {
        for (const char* digit = number; *digit != '\0'; ++digit)
            Key(std::string(1, *digit));
        Key("Return");
    }
    Click(dialog.place.topLeft() + firstNumber);
    Click(dialog.place.topLeft() + deleteButton);
    EXPECT_EQ(screen.TitleOf(Front(1)), "Delete Item");
    Key("y");
    ASSERT_TRUE(Comes([&] { return screen.Windows().size() == 2; }));
    Click(dialog.place.topLeft() + saveButton);
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Holds("Collection/Collection.col", "\"72\"\r\n\"8\"\r\n"));
}

}  // namespace
}  // namespace coinlet::test
