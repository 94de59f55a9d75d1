// The real windows in the hands of a user who does whatever comes to his mind: the program neither crashes
// nor hangs, and stays sound. fuzz_window_user [ACTS [SEED]]: what he did is written to window_user.SEED.log
// in the current folder, and kept there if something went wrong. The clock plays a part in what comes when,
// so that the same call does nearly the same, but not to the letter.

#include "app/application.h"
#include "fuzz/window_user/window_user.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "media/system_clock.h"
#include "shell/look.h"
#include "shell/qt_clipboard.h"
#include "shell/qt_printer.h"
#include "shell/qt_screen_grab.h"
#include "support/bmp_bytes.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <QPagedPaintDevice>

#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <numeric>
#include <thread>

namespace {

using namespace coinlet;
namespace fs = std::filesystem;

/// A desktop on which nothing opens.
class QuietDesktop : public Desktop {
public:
    explicit QuietDesktop(fs::path home) : home_(std::move(home)) {}
    void OpenDocument(const std::string&) override {}
    std::string UserName() const override { return "user"; }
    fs::path PictureFolder() const override { return home_ / "Pictures"; }
    std::vector<std::string> StartingPlaces() const override { return {"/", home_.string()}; }

private:
    fs::path home_;
};

/// A screen that nobody sees can't do everything, and says so each time.
void BeSilent(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Ends the process when a single act takes longer than any may, however slow the machine is.
class Watch {
public:
    explicit Watch(const test::WindowUser& user)
        : thread_([this, &user] {
              constexpr auto look = std::chrono::seconds(1);
              constexpr int longest = 180;
              std::size_t last = 0;
              int seconds = 0;
              while (!done_) {
                  std::this_thread::sleep_for(look);
                  const std::size_t acts = user.Doings();
                  seconds = acts == last ? seconds + 1 : 0;
                  last = acts;
                  if (seconds < longest) continue;
                  std::fprintf(stderr, "the program hangs after act %zu\n", acts);
                  std::abort();
              }
          }) {}
    ~Watch() {
        done_ = true;
        thread_.join();
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

void FillFolders(const fs::path& folder) {
    for (const char* const name : {"app/Ontwerpen", "app/Collection", "home/Pictures", "state"})
        fs::create_directories(folder / name);
    fs::copy(COINLET_DATA_FOLDER, folder / "app",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    constexpr std::size_t pixelBytes = 4464;  // 48 by 31 pixels of 3
    Bytes pixels(pixelBytes);
    std::iota(pixels.begin(), pixels.end(), std::uint8_t{0});
    const Bytes bitmap = test::BmpBytes{.width = 48, .height = 31, .bits = 24, .pixels = pixels}.File();
    const auto write = [&](const char* name, std::size_t count) {
        std::ofstream(folder / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bitmap.data()), static_cast<std::streamsize>(count));
    };
    write("app/Images/bitmap.bmp", bitmap.size());
    write("app/Images/cut.bmp", bitmap.size() / 2);
    write("home/Pictures/bitmap.bmp", bitmap.size());
}

/// One life of the program.
void Run(test::WindowUser& user, const fs::path& folder) {
    QtFontEngine fonts;
    const MediaCodecs codecs;
    const SystemClock clock;
    QtPlatform platform;
    QuietDesktop desktop(folder / "home");
    QtClipboard clipboard;
    const auto none = [] { return std::vector<std::string>(); };
    QtPrinter printer(desktop.PictureFolder(),
                      {none, [] { return std::string(); }, [](const std::string&) { return nullptr; }});
    QtScreenGrab grab;
    const Services services{.applicationFolder = folder / "app",
                            .platform = platform,
                            .fonts = fonts,
                            .codecs = codecs,
                            .clock = clock,
                            .desktop = desktop,
                            .clipboard = clipboard,
                            .printer = printer,
                            .screenGrab = grab,
                            .recoveryFolder = folder / "state"};
    Application application(services);
    platform.Run([&] {
        user.SitDown(platform);
        application.Start();
    });
}

}  // namespace

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): a broken test bed may end it
    constexpr std::size_t usualActs = 3000;
    constexpr unsigned long usualSeed = 1;
    constexpr int decimal = 10;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(BeSilent);
    const std::size_t acts = argc > 1 ? std::strtoul(argv[1], nullptr, decimal) : usualActs;
    const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, decimal) : usualSeed;

    const fs::path log = fs::absolute("window_user." + std::to_string(seed) + ".log");
    const test::TemporaryFolder folder;
    FillFolders(folder.Path());
    qputenv("HOME", (folder / "home").c_str());
    PrepareToolkit();
    const QApplication toolkit(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();

    std::ofstream lines(log);
    std::cout << "seed " << seed << ", acts in " << log.string() << std::endl;  // Before any crash.
    test::WindowUser user(static_cast<std::uint32_t>(seed), acts, (folder / "app").string(), lines);
    const Watch watch(user);
    std::size_t sessions = 0;
    for (; !user.IsDone(); ++sessions)
        Run(user, folder.Path());
    std::cout << user.Acts() << " acts in " << sessions << " sessions\n";
    fs::remove(log);
    return EXIT_SUCCESS;
}
