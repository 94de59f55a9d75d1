// The program with a file named on its command line, and with one that it can't read.

#include "started_program.h"

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>

namespace coinlet::test {
namespace {

namespace fs = std::filesystem;

constexpr QRgb red = qRgb(200, 30, 40), paper = 0xFFFFFFFF;

class ProgramCommandLine : public StartedProgram {
protected:
    fs::path Picture(const std::string& name, const QSize& size) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(red);
        const fs::path file = folder / name;
        EXPECT_TRUE(picture.save(QString::fromStdString(file.string()), "PNG"));
        return file;
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
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(home.string()));
        for (const char* variable : {"XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME"})
            environment.remove(variable);
        QProcess process;
        process.setProcessEnvironment(environment);
        const fs::path file = folder / name, other = folder / "other";
        process.start(
            QString::fromStdString(command.front()),
            {"--folder", QString::fromStdString(other.string()), QString::fromStdString(file.string())});
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 1);
        EXPECT_EQ(process.readAllStandardError().toStdString(),
                  "coinlet-designer: can't read '" + file.string() + "'\n");
        EXPECT_FALSE(fs::exists(other));
        EXPECT_FALSE(fs::exists(home / "Pictures"));
    }
}

}  // namespace
}  // namespace coinlet::test
