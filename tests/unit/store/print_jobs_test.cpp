// What lands where on how many sheets, and that it is the right picture.
#include "store/print_jobs.h"

#include "controls/file_boxes.h"
#include "controls/picture_box.h"
#include "support/world.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace coinlet::test {
namespace {

/// Sheets with what stands on them.
class Sheets : public NoPrinter {
public:
    struct Picture {
        Image image;
        Rectangle place;
    };
    struct Text {
        double x = 0, y = 0;
        FontProperties font;
        Colour colour = black;
        std::string text;
    };
    struct Sheet {
        PageOrientation orientation = PageOrientation::Portrait;
        std::vector<Picture> pictures;
        std::vector<Text> texts;
        int boxes = 0;
    };
    std::vector<Sheet> sheets;
    int jobs = 0, killed = 0;

    void SetOrientation(PageOrientation orientation) override { orientation_ = orientation; }
    void FeedPage() override { Page(); }
    void Print(double x, double y, const FontProperties& font, Colour colour,
               std::string_view text) override {
        Page().texts.push_back({x, y, font, colour, std::string(text)});
    }
    void PaintPicture(const Image& image, const Rectangle& to) override {
        Page().pictures.push_back({image, to});
    }
    void Box(double, double, double, double, Colour) override { ++Page().boxes; }
    void NewPage() override { fed_ = false; }
    void EndDoc() override { fed_ = false, ++jobs; }
    void KillDoc() override { fed_ = false, ++killed; }

private:
    Sheet& Page() {
        if (!fed_) sheets.push_back({.orientation = orientation_, .pictures = {}, .texts = {}, .boxes = 0});
        fed_ = true;
        return sheets.back();
    }
    PageOrientation orientation_ = PageOrientation::Portrait;
    bool fed_ = false;
};

/// A form with what the jobs need for their own use.
struct ScratchForm : Form {
    explicit ScratchForm(FormServices told) : Form(told, "ScratchForm") { Picture2.surface.AutoSize = true; }
    FileListBox File1{*this, "File1"};
    PictureBox Picture2{*this, "Picture2"};
};

class PrintJobs : public testing::Test, protected World {
protected:
    PrintJobs() { fs::create_directories(folder / "app/Cliparts"); }

    Sheets paper;
    Services printing{
        services.applicationFolder, platform, fonts, codecs, clock, desktop, clipboard, paper, screenGrab};
    Context there{printing, session, main, plaatjes};
    ScratchForm form{services.ForForms()};

    void StorePicture(const std::string& file, Colour colour) const {
        ASSERT_FALSE(SavePicture(Image(Bitmap(7, 5, ToPixel(colour))), folder / "app" / file));
    }
    static std::string Numbered(int number) { return std::to_string(1000 + number); }
    /// Designs of colours that count them.
    void StoreDesigns(int count) const {
        for (int i = 0; i < count; ++i)
            StorePicture("Ontwerpen/" + Numbered(i) + ".pat", RGB(i, 0, 0));
    }
};

TEST_F(PrintJobs, DesignIsPrintedAsItIsOnTheCanvas) {
    main.Pic.surface.PSet(3, 4, RGB(1, 2, 3));
    main.InfoPic.surface.PSet(5, 6, RGB(4, 5, 6));
    PrintDesign(there, 3, false);
    ASSERT_EQ(paper.sheets.size(), 3U);
    EXPECT_EQ(paper.jobs, 1);
    for (const Sheets::Sheet& sheet : paper.sheets) {
        EXPECT_EQ(sheet.orientation, PageOrientation::Landscape);
        ASSERT_EQ(sheet.pictures.size(), 2U);
        EXPECT_EQ(sheet.pictures[0].image, main.Pic.surface.Image());
        EXPECT_EQ(sheet.pictures[1].image, main.InfoPic.surface.Image());
    }
}

TEST_F(PrintJobs, CopiesAreWholeAndNotTooMany) {
    const std::vector<std::pair<double, std::size_t>> printed{{0, 0},   {-1, 0},    {0.9, 0},    {1, 1},
                                                              {2.9, 2}, {999, 999}, {1e300, 999}};
    for (const auto& [copies, expected] : printed) {
        paper.sheets.clear();
        PrintDesign(there, copies, true);
        EXPECT_EQ(paper.sheets.size(), expected) << copies;
    }
}

TEST_F(PrintJobs, JobThatTheProgramsEndCutsShortIsGivenUp) {
    for (const char* file : {"a.art", "b.art", "c.art"})
        StorePicture(std::string("Cliparts/") + file, black);
    platform.answers = {Answer::Yes};
    platform.whenServing = [this] {
        if (platform.served == 2) platform.End();
    };
    EXPECT_FALSE(platform.Do([this] { PrintAllCliparts(there, form.File1, form.Picture2.surface); }));
    EXPECT_EQ(paper.killed, 1);
    EXPECT_EQ(paper.jobs, 0);
    EXPECT_EQ(paper.sheets.size(), 1U);
    EXPECT_EQ(paper.sheets[0].pictures.size(), 2U);
}

TEST_F(PrintJobs, InfoTextRunsOffTheSheet) {
    SetRows(std::vector<std::string>(40, "row"));
    PrintDesign(there, 1, true);
    ASSERT_EQ(paper.sheets.size(), 1U);
    const auto& texts = paper.sheets[0].texts;
    ASSERT_EQ(texts.size(), 42U);
    EXPECT_EQ(texts.back().x, 10200);
    EXPECT_EQ(texts.back().y, 8700 + 39 * 210);
}

TEST_F(PrintJobs, LettersAreThoseOfTheirKind) {
    const auto expect = [](const Sheets::Text& text, float size, bool bold, Colour colour) {
        SCOPED_TRACE(text.text);
        EXPECT_EQ(text.font.FontName, "Arial");
        EXPECT_EQ(text.font.FontSize, size);
        EXPECT_EQ(text.font.FontBold, bold);
        EXPECT_FALSE(text.font.FontItalic);
        EXPECT_EQ(text.colour, colour);
    };
    SetRows({"row"});
    PrintDesign(there, 1, true);
    StoreDesigns(1);
    PrintAllDesigns(there, form.File1, form.Picture2.surface);
    StorePicture("Cliparts/a.art", black);
    platform.answers = {Answer::Yes};
    PrintAllCliparts(there, form.File1, form.Picture2.surface);
    ASSERT_EQ(paper.sheets.size(), 3U);

    const auto& design = paper.sheets[0].texts;
    ASSERT_EQ(design.size(), 3U);
    expect(design[0], 10, true, RGB(90, 0, 0));
    expect(design[1], 10, true, RGB(90, 0, 0));
    expect(design[2], 9, true, RGB(0, 80, 0));
    const auto& designs = paper.sheets[1].texts;
    ASSERT_EQ(designs.size(), 2U);
    expect(designs[0], 10, true, RGB(90, 0, 0));
    expect(designs[1], 7, false, black);
    const auto& cliparts = paper.sheets[2].texts;
    ASSERT_EQ(cliparts.size(), 1U);
    expect(cliparts[0], 7, false, black);
}

TEST_F(PrintJobs, DesignsStandInFiveColumns) {
    constexpr std::array<double, 5> columns{300, 2640, 4980, 7320, 9660};
    constexpr std::array<double, 8> firstRows{1500, 3300, 5100, 6900, 8700, 10500, 12300, 14100};
    constexpr std::array<double, 9> nextRows{300, 2100, 3900, 5700, 7500, 9300, 11100, 12900, 14700};
    constexpr int designs = 86, onFirst = 40, onNext = 45;
    StoreDesigns(designs);
    PrintAllDesigns(there, form.File1, form.Picture2.surface);
    ASSERT_EQ(paper.sheets.size(), 3U);
    EXPECT_EQ(paper.sheets[0].pictures.size(), 40U);
    EXPECT_EQ(paper.sheets[1].pictures.size(), 45U);
    EXPECT_EQ(paper.sheets[2].pictures.size(), 1U);
    EXPECT_EQ(paper.sheets[0].texts.size(), 41U);  // The header stands on the first sheet only.
    EXPECT_EQ(paper.sheets[1].texts.size(), 45U);
    for (std::size_t i = 0; i < designs; ++i) {
        SCOPED_TRACE(i);
        const std::size_t sheet = i < onFirst ? 0 : 1 + (i - onFirst) / onNext;
        const std::size_t place = i < onFirst ? i : (i - onFirst) % onNext;
        const double y = sheet == 0 ? firstRows.at(place / 5) : nextRows.at(place / 5);
        const Sheets::Picture& picture = paper.sheets[sheet].pictures.at(place);
        EXPECT_EQ(picture.place.x, columns.at(place % 5));
        EXPECT_EQ(picture.place.y, y);
        EXPECT_EQ(picture.image.At(0, 0), RGB(static_cast<int>(i), 0, 0));
        const Sheets::Text& name = paper.sheets[sheet].texts.at(place + (sheet == 0 ? 1 : 0));
        EXPECT_EQ(name.text, Numbered(static_cast<int>(i)));
        EXPECT_EQ(name.x, columns.at(place % 5));
        EXPECT_EQ(name.y, y + 1380);
    }
}

TEST_F(PrintJobs, FullSheetsAreNotFollowedByABlankOne) {
    const std::vector<std::pair<int, std::size_t>> printed{{0, 1}, {40, 1}, {41, 2}, {85, 2}, {86, 3}};
    for (const auto& [designs, expected] : printed) {
        paper.sheets.clear();
        StoreDesigns(designs);
        PrintAllDesigns(there, form.File1, form.Picture2.surface);
        EXPECT_EQ(paper.sheets.size(), expected) << designs;
    }
}

TEST_F(PrintJobs, FileWithoutAPictureIsPrintedAsTheOneBeforeIt) {
    folder.Write("app/Ontwerpen/0.pat", "no picture");
    StorePicture("Ontwerpen/1.pat", RGB(1, 0, 0));
    folder.Write("app/Ontwerpen/2.pat", "");
    StorePicture("Ontwerpen/3.pat", RGB(3, 0, 0));
    PrintAllDesigns(there, form.File1, form.Picture2.surface);
    const auto& pictures = paper.sheets.at(0).pictures;
    ASSERT_EQ(pictures.size(), 4U);
    EXPECT_TRUE(pictures[0].image.Empty());
    EXPECT_EQ(pictures[1].image.At(0, 0), RGB(1, 0, 0));
    EXPECT_EQ(pictures[2].image, pictures[1].image);
    EXPECT_EQ(pictures[3].image.At(0, 0), RGB(3, 0, 0));
}

TEST_F(PrintJobs, FolderHoldsMoreThanDesigns) {
    StorePicture("Ontwerpen/a.pat", RGB(1, 0, 0));
    fs::create_directory(folder / "app/Ontwerpen/b.pat");
    ASSERT_EQ(::mkfifo((folder / "app/Ontwerpen/c.pat").c_str(), 0600), 0);
    folder.Write("app/Ontwerpen/d.txt", "text");
    PrintAllDesigns(there, form.File1, form.Picture2.surface);
    EXPECT_EQ(paper.sheets.at(0).pictures.size(), 1U);
    EXPECT_NE(paper.sheets.at(0).texts.at(0).text.find(" / 1 Designs"), std::string::npos);
}

TEST_F(PrintJobs, ClipartsServeEventsOnceAFile) {
    for (int i = 0; i < 5; ++i)
        StorePicture("Cliparts/" + Numbered(i) + ".art", RGB(i, 0, 0));
    platform.answers = {Answer::Yes};
    PrintAllCliparts(there, form.File1, form.Picture2.surface);
    EXPECT_EQ(platform.served, 5);
    ASSERT_EQ(paper.sheets.size(), 1U);
    EXPECT_EQ(paper.sheets[0].boxes, 5);
    EXPECT_EQ(paper.sheets[0].orientation, PageOrientation::Portrait);
}

TEST_F(PrintJobs, ClipartsThatAreNotWantedStartNoJob) {
    StorePicture("Cliparts/a.art", black);
    platform.answers = {Answer::No};
    PrintAllCliparts(there, form.File1, form.Picture2.surface);
    EXPECT_TRUE(paper.sheets.empty());
    EXPECT_EQ(paper.jobs, 0);
}

}  // namespace
}  // namespace coinlet::test
