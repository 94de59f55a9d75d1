// The program from its start to its end, with and without work that nobody saved.

#include "started_program.h"

#include <filesystem>

namespace coinlet::test {
namespace {

std::string SettingsWith(const std::string& language) {
    return "Ivo Kestrell Software \xAE 2014\r\n----------------------------\r\n" + language + "\r\n";
}

class ProgramLife : public StartedProgram {
protected:
    static constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;

    /// A free-hand stroke over the middle of the canvas.
    void DrawSomething() {
        Click(form.Knop[0], 20, 14);
        MoveTo(PlaceOf(form.Pic, 100, 250));
        Press();
        MoveTo(PlaceOf(form.Pic, 400, 250));
        EXPECT_TRUE(Shows(ink));
        Release();
    }
    bool Shows(QRgb colour) {
        return Comes([&] { return ColourAt(PlaceOf(form.Pic, 250, 250)) == colour; });
    }

    /// Where a question has its buttons, from the lower right corner.
    static QPoint YesOf(const OpenWindow& box) { return box.place.bottomRight() - QPoint(137, 22); }
    static QPoint NoOf(const OpenWindow& box) { return box.place.bottomRight() - QPoint(50, 22); }

    OpenWindow Question(const std::string& title) {
        const OpenWindow box = Front();
        EXPECT_EQ(screen.TitleOf(box), title);
        return box;
    }
    void ExpectEnd(const std::string& language) {
        EXPECT_TRUE(EndsWell());
        EXPECT_EQ(folder.Read("Coinlet.ini"), SettingsWith(language));
    }
};

TEST_F(ProgramLife, FreshFolderStartsInDutchAndSaysSoInTheSettings) {
    ASSERT_EQ(folder.Read("Coinlet.ini"), "(no file)");
    Start();
    EXPECT_EQ(Title(), "Coinlet Designer (Nederlands)");
    EXPECT_EQ(folder.Read("Coinlet.ini"), SettingsWith("Nederlands"));
}

TEST_F(ProgramLife, UserWithoutAPictureFolderGetsOne) {
    Start();
    EXPECT_TRUE(std::filesystem::is_directory(home / "Pictures"));
}

TEST_F(ProgramLife, CloseBoxEndsAtOnceWhereNothingChanged) {
    folder.Write("Coinlet.ini", SettingsWith("English"));
    Start();
    EXPECT_EQ(Title(), "Coinlet Designer (English)");
    CloseBox();
    ExpectEnd("English");
}

TEST_F(ProgramLife, ExitByItsKeyEndsAtOnceWhereNothingChanged) {
    Start();
    Key("ctrl+q");
    ExpectEnd("Nederlands");
}

TEST_F(ProgramLife, CloseBoxAsksAboutUnsavedWork) {
    Start();
    DrawSomething();
    CloseBox();
    Question(" Close Coinlet Designer");
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Runs());
    EXPECT_TRUE(Shows(ink));

    CloseBox();
    Question(" Close Coinlet Designer");
    Key("Return");
    ExpectEnd("Nederlands");
}

TEST_F(ProgramLife, ExitAsksAboutUnsavedWork) {
    Start();
    DrawSomething();
    Choose(OpenMenu(form.File), form.FileExit);
    Click(NoOf(Question(" Close Coinlet Designer")));
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Runs());
    EXPECT_TRUE(Shows(ink));

    Choose(OpenMenu(form.File), form.FileExit);
    Click(YesOf(Question(" Close Coinlet Designer")));
    ExpectEnd("Nederlands");
}

TEST_F(ProgramLife, LanguageIsTheSameAfterTheNextStart) {
    Start();
    Choose(OpenMenu(form.Help), form.HelpLanguage);
    Choose(Front(1), form.HelpTaal[2]);
    ASSERT_TRUE(Comes([&] { return Title() == "Coinlet Designer (English)"; }));
    Choose(OpenMenu(form.File), form.FileExit);
    ExpectEnd("English");
    Start();
    EXPECT_EQ(Title(), "Coinlet Designer (English)");
}

TEST_F(ProgramLife, NewIsAnsweredByKeys) {
    Start();
    DrawSomething();
    Key("ctrl+n");
    Question("New");
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(ink));

    Key("ctrl+n");
    Question("New");
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(paper));
    // Nothing is left that anybody could lose.
    CloseBox();
    ExpectEnd("Nederlands");
}

TEST_F(ProgramLife, NewIsAnsweredByThePointer) {
    Start();
    DrawSomething();
    Choose(OpenMenu(form.File), form.FileNew);
    Click(NoOf(Question("New")));
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(ink));

    Choose(OpenMenu(form.File), form.FileNew);
    Click(YesOf(Question("New")));
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(paper));
}

}  // namespace
}  // namespace coinlet::test
