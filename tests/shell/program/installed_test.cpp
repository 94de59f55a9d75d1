// The program as a package installs it, used by somebody who may not write where it was installed.

#include "started_program.h"

#include <QProcess>
#include <QStringList>

#include <unistd.h>

#include <string>
#include <sys/stat.h>

namespace coinlet::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned nobody = 65534;

/// Standard output of a command that must succeed.
std::string OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(300000) && process.exitCode() == 0) << program.toStdString();
    return process.readAllStandardOutput().trimmed().toStdString();
}

void HandOver(const fs::path& path) {
    EXPECT_EQ(::chown(path.c_str(), nobody, nobody), 0);
}

class InstalledProgram : public StartedProgram {
protected:
    InstalledProgram() {
        fs::permissions(folder.Path(), fs::perms(0755));
        const fs::path root = folder / "root";
        const std::string package = OutputOf(COINLET_SOURCE "/dev/package.sh", {"deb", COINLET_BUILD});
        OutputOf("dpkg-deb", {"--extract", QString::fromStdString(package), QString::fromStdString(root)});
        fs::create_directories(home);
        command = {root / "usr/bin/coinlet-designer"};
        // Root could write everywhere, so somebody else uses the program.
        if (::geteuid() == 0) {
            HandOver(home);
            command.insert(command.begin(), {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"});
        }
    }

    bool IsThere(const fs::path& file) const { return fs::exists(application_ / file); }

    const fs::path application_ = home / ".local/share/coinlet-designer";
};

TEST_F(InstalledProgram, DesignIsFoundAfterTheNextStart) {
    Start();
    // The delivered data are at hand, and the user's own folders have been made.
    EXPECT_TRUE(fs::is_symlink(application_ / "Data/English.txt"));
    EXPECT_TRUE(IsThere("Data/English.txt"));
    EXPECT_TRUE(IsThere("Ontwerpen"));

    Click(form.Knop[0], 20, 14);
    MoveTo(PlaceOf(form.Pic, 100, 150));
    Press();
    MoveTo(PlaceOf(form.Pic, 400, 150));
    Release();
    Key("ctrl+s");
    EXPECT_EQ(screen.TitleOf(Front()), "Save Coinlet");
    for (const char* letter : {"o", "w", "l"})
        Key(letter);
    Key("Return");
    ASSERT_TRUE(Comes([&] { return IsThere("Ontwerpen/owl.pat"); }));
    ASSERT_TRUE(MainIsInFront());
    CloseBox();
    ASSERT_TRUE(EndsWell());
    EXPECT_TRUE(IsThere("Coinlet.ini"));

    command.push_back(application_ / "Ontwerpen/owl.pat");
    Start();
    EXPECT_TRUE(IsThere("Ontwerpen/owl.pat"));
    EXPECT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.Pic, 250, 150)) == 0xFF000000; }));
    // Nothing of it is unsaved.
    CloseBox();
    EXPECT_TRUE(EndsWell());
}

}  // namespace
}  // namespace coinlet::test
