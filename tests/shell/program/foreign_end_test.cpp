// Ends that the user didn't choose in the program: signals, the loss of the screen, the end of the session.
// Nothing is asked, the settings are written, and what isn't stored comes back with the next start. So it
// does when the user leaves and isn't asked.

#include "base/files.h"
#include "session_manager.h"
#include "started_program.h"
#include "surface/codecs.h"

#include <QElapsedTimer>
#include <QThread>

#include <array>
#include <csignal>
#include <optional>
#include <string>

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000;
const std::string settings =
    "Ivo Kestrell Software \xAE 2014\r\n----------------------------\r\nNederlands\r\n";

class ProgramForeignEnd : public StartedProgram {
protected:
    /// A stroke by free hand across the canvas.
    void Draw(int y) {
        Click(form.Knop[0], 20, 14);
        MoveTo(PlaceOf(form.Pic, 100, y));
        Press();
        MoveTo(PlaceOf(form.Pic, 400, y));
        Release();
        EXPECT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.Pic, 250, y)) == ink; }));
    }
    void SaveAs(const std::string& name) {
        Key("ctrl+s");
        EXPECT_EQ(screen.TitleOf(Front()), "Save Coinlet");
        for (const char letter : name)
            Key(std::string(1, letter));
        Key("Return");
    }

    void StartIn(SessionManager& session) {
        variables["SESSION_MANAGER"] = session.Address();
        meanwhile = [&session] { session.Serve(); };
        Start();
        ASSERT_TRUE(Comes([&] { return session.Serve().members == 1; }));
    }

    /// Sends a signal, after which the program leaves in good order and soon.
    void ExpectToLeaveAt(int signal) {
        fs::remove(folder / "Coinlet.ini");
        QElapsedTimer time;
        time.start();
        Send(signal);
        EXPECT_TRUE(Comes([&] { return screen.Windows().empty(); }));
        // It waits for nobody: the pauses of the program are longer, and so is anybody's patience.
        EXPECT_LT(time.elapsed(), 2500);
        EXPECT_TRUE(EndsWell());
        EXPECT_EQ(folder.Read("Coinlet.ini"), settings);
        ExpectNoStrays();
    }
    void ExpectNoStrays() const {
        for (const fs::path& place : {folder.Path(), folder / "Ontwerpen", home / "Pictures", state})
            for (const std::string& name : ListFiles(place, "*"))
                EXPECT_FALSE(name.ends_with(".tmp")) << place / name;
        EXPECT_FALSE(FileExists(folder / "mydummy.bmp"));
    }
    /// The design that the next start finds and puts into the store.
    std::optional<Image> RecoveredAfterTheNextStart() {
        Start();
        Comes([&] { return !Recovered().empty(); });
        const auto designs = Recovered();
        if (designs.size() != 1) return std::nullopt;
        const auto bytes = ReadFile(folder / "Ontwerpen" / designs.front());
        return bytes ? DecodeBmp(*bytes) : std::nullopt;
    }
    std::vector<std::string> Recovered() const { return ListFiles(folder / "Ontwerpen", "Hersteld *.pat"); }
    void ExpectRecovered(int y) {
        const auto design = RecoveredAfterTheNextStart();
        ASSERT_TRUE(design);
        EXPECT_EQ(design->At(250, y), black);
        EXPECT_EQ(design->Width(), 700);
    }
    bool HoldsSnapshot() const { return !ListFiles(state, "*.pat").empty(); }

    fs::path state = home / ".local/state/coinlet-designer";
};

TEST_F(ProgramForeignEnd, FreshStrokeOutlivesASignal) {
    Start();
    Draw(250);
    ExpectToLeaveAt(SIGTERM);
    EXPECT_TRUE(HoldsSnapshot());
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, TerminalThatClosesEndsItToo) {
    Start();
    Draw(250);
    ExpectToLeaveAt(SIGHUP);
    Start();
    Draw(150);
    ExpectToLeaveAt(SIGINT);
}

TEST_F(ProgramForeignEnd, NohupMeansIt) {
    command.insert(command.begin(), "nohup");
    Start();
    Send(SIGHUP);
    Draw(250);
    EXPECT_TRUE(Runs());
}

TEST_F(ProgramForeignEnd, SoIsTheLeavingOfAUserWhoIsNotAsked) {
    Start();
    const OpenWindow menu = OpenMenu(form.Filters);
    Choose(menu, form.Filter[5]);
    ASSERT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.Pic, 10, 10)) == ink; }));
    CloseBox();
    EXPECT_TRUE(EndsWell());
    EXPECT_TRUE(HoldsSnapshot());
    const auto design = RecoveredAfterTheNextStart();
    ASSERT_TRUE(design);
    EXPECT_EQ(design->At(0, 0), black);
    // That one was only looked at.
    CloseBox();
    EXPECT_TRUE(EndsWell());
    EXPECT_FALSE(HoldsSnapshot());
}

TEST_F(ProgramForeignEnd, WithoutUnsavedWorkNothingIsLeftBehind) {
    Start();
    ExpectToLeaveAt(SIGTERM);
    EXPECT_FALSE(HoldsSnapshot());
    Start();
    Draw(250);
    SaveAs("tag");
    ASSERT_TRUE(Comes([&] { return FileExists(folder / "Ontwerpen/tag.pat"); }));
    ASSERT_TRUE(MainIsInFront());
    ExpectToLeaveAt(SIGTERM);
    EXPECT_FALSE(HoldsSnapshot());
}

TEST_F(ProgramForeignEnd, StrokeUnderWayIsKept) {
    Start();
    Click(form.Knop[0], 20, 14);
    MoveTo(PlaceOf(form.Pic, 100, 250));
    Press();
    MoveTo(PlaceOf(form.Pic, 400, 250));
    ASSERT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.Pic, 250, 250)) == ink; }));
    ExpectToLeaveAt(SIGTERM);
    Release();
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, DialogIsNoObstacle) {
    Start();
    Draw(250);
    Key("ctrl+p");
    EXPECT_EQ(screen.TitleOf(Front()), "Print Coinlet (PDF)");
    ExpectToLeaveAt(SIGTERM);
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, QuestionIsNotAsked) {
    Start();
    Draw(250);
    CloseBox();
    EXPECT_EQ(screen.TitleOf(Front()), " Close Coinlet Designer");
    ExpectToLeaveAt(SIGTERM);
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, QuestionOverADialogIsNoObstacle) {
    Start();
    Draw(250);
    SaveAs("tag");
    ASSERT_TRUE(Comes([&] { return FileExists(folder / "Ontwerpen/tag.pat"); }));
    ASSERT_TRUE(MainIsInFront());
    const std::string before = folder.Read("Ontwerpen/tag.pat");
    Draw(150);
    SaveAs("tag");
    EXPECT_EQ(screen.TitleOf(Front(1)), " Exist");
    ExpectToLeaveAt(SIGTERM);
    EXPECT_EQ(folder.Read("Ontwerpen/tag.pat"), before);
    ExpectRecovered(150);
}

TEST_F(ProgramForeignEnd, OpenMenuIsNoObstacle) {
    Start();
    Draw(250);
    OpenMenu(form.File);
    ExpectToLeaveAt(SIGTERM);
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, SavingThatShowsItsBarIsDone) {
    Start();
    Draw(250);
    SaveAs("tag");
    ASSERT_TRUE(Comes([&] { return FileExists(folder / "Ontwerpen/tag.pat"); }));
    ExpectToLeaveAt(SIGTERM);
    const auto bytes = ReadFile(folder / "Ontwerpen/tag.pat");
    ASSERT_TRUE(bytes);
    const auto design = DecodeBmp(*bytes);
    ASSERT_TRUE(design);
    EXPECT_EQ(design->At(250, 250), black);
    EXPECT_FALSE(HoldsSnapshot());
}

/// The moment when a signal comes can't be chosen from outside; many are tried.
constexpr std::array pauses{0UL, 2UL, 5UL, 13UL, 30UL, 60UL};  // milliseconds

TEST_F(ProgramForeignEnd, FiltersLeaveWhatWasThereOrWhatTheyMade) {
    for (const unsigned long pause : pauses) {
        SCOPED_TRACE(pause);
        Start();
        Draw(250);
        const OpenWindow menu = OpenMenu(form.Filters);
        Choose(menu, form.Filter[5]);
        QThread::msleep(pause);
        ExpectToLeaveAt(SIGTERM);
        const auto design = RecoveredAfterTheNextStart();
        ASSERT_TRUE(design);
        // "Negative" turns the whole canvas or nothing of it.
        const bool isTurned = design->At(0, 0) == black;
        for (int y = 0; y < 500; ++y)
            for (int x = 0; x < 500; ++x) {
                const bool nearTheStroke = x >= 95 && x <= 405 && y >= 245 && y <= 255;
                if (nearTheStroke) continue;
                ASSERT_EQ(design->At(x, y), isTurned ? black : white) << x << ", " << y;
            }
        EXPECT_EQ(design->At(250, 250), isTurned ? white : black);
        ExpectToLeaveAt(SIGTERM);
        for (const std::string& name : Recovered())
            fs::remove(folder / "Ontwerpen" / name);
    }
}

TEST_F(ProgramForeignEnd, PrintJobLeavesAWholeFileOrNone) {
    const QPoint printAllCliparts(176, 70), printButton(220, 226);
    const fs::path pdf = home / "Pictures/Coinlet.pdf";
    for (const unsigned long pause : pauses) {
        SCOPED_TRACE(pause);
        fs::remove(pdf);
        Start();
        Key("ctrl+p");
        const OpenWindow dialog = Front();
        Click(dialog.place.topLeft() + printAllCliparts);
        Click(dialog.place.topLeft() + printButton);
        EXPECT_EQ(screen.TitleOf(Front(1)), "Printing Cliparts");
        Key("Return");
        QThread::msleep(pause * 4);
        ExpectToLeaveAt(SIGTERM);
        if (const auto bytes = ReadFile(pdf)) {
            const std::string text(bytes->begin(), bytes->end());
            EXPECT_TRUE(text.starts_with("%PDF-"));
            EXPECT_NE(text.find("%%EOF", text.size() - 10), std::string::npos);
        }
    }
}

TEST_F(ProgramForeignEnd, LimitOfFileSizesIsAFailedWrite) {
    folder.Write("Ontwerpen/tag.pat", "as it was");
    command.insert(command.begin(), {"prlimit", "--fsize=100000"});
    Start();
    Draw(250);
    SaveAs("tag");
    EXPECT_EQ(screen.TitleOf(Front(1)), " Exist");
    Key("Left");
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Runs());
    EXPECT_EQ(folder.Read("Ontwerpen/tag.pat"), "as it was");
    ExpectNoStrays();
    ExpectToLeaveAt(SIGTERM);
}

TEST_F(ProgramForeignEnd, LossOfTheScreenKeepsTheWork) {
    Start();
    Draw(250);
    fs::remove(folder / "Coinlet.ini");
    CutOff();
    // The toolkit has its own opinion of the status.
    EXPECT_TRUE(Comes([&] { return !Runs(); }));
    EXPECT_EQ(folder.Read("Coinlet.ini"), settings);
    ExpectRecovered(250);
}

TEST_F(ProgramForeignEnd, SessionThatEndsTakesItAlong) {
    SessionManager session;
    StartIn(session);
    Draw(250);
    EXPECT_FALSE(HoldsSnapshot());
    session.AskToSave();
    ASSERT_TRUE(Comes([&] { return session.Serve().saved == 1; }));
    EXPECT_TRUE(HoldsSnapshot());
    // Somebody stopped that: the user goes on, nothing has been asked.
    session.GiveUp();
    EXPECT_TRUE(MainIsInFront());
    Draw(150);
    fs::remove(folder / "Coinlet.ini");
    session.AskToSave();
    ASSERT_TRUE(Comes([&] { return session.Serve().saved == 2; }));
    session.End();
    EXPECT_TRUE(EndsWell());
    EXPECT_EQ(folder.Read("Coinlet.ini"), settings);
    variables.clear();
    meanwhile = [] {};
    ExpectRecovered(150);
}

TEST_F(ProgramForeignEnd, WorkThatIsStoredAfterAnEndThatWasStoppedIsNotRecovered) {
    SessionManager session;
    StartIn(session);
    Draw(250);
    session.AskToSave();
    ASSERT_TRUE(Comes([&] { return session.Serve().saved == 1; }));
    session.GiveUp();
    CloseBox();
    EXPECT_EQ(screen.TitleOf(Front()), " Close Coinlet Designer");
    Key("Return");
    EXPECT_TRUE(EndsWell());
    EXPECT_FALSE(HoldsSnapshot());
}

}  // namespace
}  // namespace coinlet::test
