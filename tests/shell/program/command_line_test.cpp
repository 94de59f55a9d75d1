// The program with a file named on its command line, and with one that it can't read.

#include "started_program.h"

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>

namespace coinlet::test {
namespace {

namespace fs = std::filesystem;

constexpr QRgb red = qRgb(200, 30, 40), paper = 0xFFFFFFFF;

QString Text(const fs::path& path) {
    return QString::fromStdString(path.string());
}

class ProgramCommandLine : public StartedProgram {
protected:
    fs::path Picture(const std::string& name, const QSize& size) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(red);
        const fs::path file = folder / name;
        EXPECT_TRUE(picture.save(QString::fromStdString(file.string()), "PNG"));
        return file;
    }
    /// What the program, started with these arguments, says on standard error before it ends by itself.
    std::string Complaint(const QStringList& arguments, int status) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(home.string()));
        for (const char* variable : {"XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME"})
            environment.remove(variable);
        for (const auto& [variable, value] : variables)
            environment.insert(QString::fromStdString(variable), QString::fromStdString(value));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QString::fromStdString(command.front()), arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), status);
        return process.readAllStandardError().toStdString();
    }
    bool Shows(int x, int y, QRgb colour) {
        return Comes([&] { return ColourAt(PlaceOf(form.Pic, x, y)) == colour; });
    }
};

TEST_F(ProgramCommandLine, PictureFloatsUntilItIsBurnedIn) {
    command.push_back(Picture("photo.png", {60, 40}));
    Start();
    EXPECT_TRUE(Shows(59, 39, red));
    EXPECT_TRUE(Shows(80, 60, paper));
    // The arrows are the image's.
    Key("shift+Right");
    EXPECT_TRUE(Shows(69, 39, red));
    EXPECT_TRUE(Shows(5, 5, paper));
    Key("Return");
    // Once it is part of the canvas it is unsaved work.
    EXPECT_TRUE(Shows(69, 39, red));
    CloseBox();
    EXPECT_EQ(screen.TitleOf(Front()), " Close Coinlet Designer");
}

TEST_F(ProgramCommandLine, WhatCannotBeReadIsSaidBeforeAnythingIsMade) {
    folder.Write("note.pat", "no picture");
    for (const std::string name : {"note.pat", "missing.bmp"}) {
        SCOPED_TRACE(name);
        const fs::path file = folder / name, other = folder / "other";
        EXPECT_EQ(Complaint({"--folder", Text(other), Text(file)}, 1),
                  "coinlet-designer: can't read '" + file.string() + "'\n");
        EXPECT_FALSE(fs::exists(other));
        EXPECT_FALSE(fs::exists(home / "Pictures"));
    }
}

// Designs that went elsewhere would be lost to him.
TEST_F(ProgramCommandLine, FolderThatCannotBeMadeIsNoneToWorkIn) {
    const fs::path file = folder.Write("file", "no folder");
    const fs::path named = file / "designs";
    EXPECT_EQ(Complaint({"--folder", Text(named)}, 1),
              "coinlet-designer: can't make the folder '" + named.string() + "'\n");
    EXPECT_FALSE(fs::exists(home / "Pictures"));
}

/// The program where no window can be opened: nobody says where, or a server that isn't there.
class ProgramWithoutDisplay : public ProgramCommandLine, public testing::WithParamInterface<const char*> {
protected:
    ProgramWithoutDisplay() {
        variables = {{"DISPLAY", GetParam()},
                     {"WAYLAND_DISPLAY", ""},
                     {"XDG_SESSION_TYPE", ""},
                     {"QT_QPA_PLATFORM", ""}};
    }
};
INSTANTIATE_TEST_SUITE_P(Displays, ProgramWithoutDisplay, testing::Values("", ":64999"));

TEST_P(ProgramWithoutDisplay, SaysSoAndMakesNothing) {
    const fs::path other = folder / "other";
    EXPECT_EQ(Complaint({"--folder", Text(other), Text(Picture("photo.png", {60, 40}))}, 1),
              "coinlet-designer: there is no display to open a window on\n");
    EXPECT_FALSE(fs::exists(other));
    EXPECT_FALSE(fs::exists(home / "Pictures"));
}

TEST_P(ProgramWithoutDisplay, SaysFirstWhatElseIsWrong) {
    EXPECT_EQ(Complaint({"-style", "Windows", "--draw"}, 2),
              "coinlet-designer: unknown option '--draw'\nTry 'coinlet-designer --help'.\n");
    const fs::path file = folder / "missing.bmp";
    EXPECT_EQ(Complaint({Text(file)}, 1), "coinlet-designer: can't read '" + file.string() + "'\n");
}

TEST_F(ProgramCommandLine, WhatMakesNoSenseIsSaid) {
    EXPECT_EQ(Complaint({"--draw"}, 2),
              "coinlet-designer: unknown option '--draw'\nTry 'coinlet-designer --help'.\n");
}

}  // namespace
}  // namespace coinlet::test
