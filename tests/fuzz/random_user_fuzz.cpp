// The whole program in the hands of a user who does whatever comes to his mind: it never crashes, and stays
// sound. fuzz_random_user [ROUNDS [SEED [DIALOG...]]]: what he did is written to random_user.SEED.play in the
// current folder, and kept there if something went wrong. He opens those dialogs more often than others. At
// the end he tells what he never used; a long run fails unless he used everything.

#include "coinlet_program.h"
#include "fuzz/random_user/random_user.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "player/script_run.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

using namespace coinlet;
namespace fs = std::filesystem;

/// What every application folder is filled from.
constexpr const char* dataFolder = COINLET_DATA_FOLDER;
/// The sources of the program.
constexpr const char* sourceFolder = COINLET_SOURCE_FOLDER;
/// In so many steps everything is used.
constexpr std::size_t longRun = 100000;

/// The last lines of a script, each with its number.
void PrintEnd(const fs::path& script) {
    constexpr std::size_t shown = 12, widest = 200;
    std::ifstream file(script);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line.substr(0, widest));
    for (std::size_t i = lines.size() - std::min(shown, lines.size()); i < lines.size(); ++i)
        std::cout << i + 1 << ": " << lines[i] << '\n';
}

/// Prints what was used; true if that is all that a user can use.
bool PrintReach(const test::Reach& reach) {
    std::cout << reach.Table();
    const test::Reach::Rest rest = reach.FindRest(sourceFolder);
    std::cout << rest.closed.size() << " closed to users\n";
    for (const std::string& name : rest.closed)
        std::cout << "  " << name << '\n';
    std::cout << rest.unreached.size() << " unreached\n";
    for (const std::string& name : rest.unreached)
        std::cout << "  " << name << '\n';
    return rest.unreached.empty();
}

/// True if the program came through sound.
bool Play(const fs::path& script, std::size_t rounds, std::uint32_t seed,
          std::vector<std::string> favourites) {
    const test::TemporaryFolder folder;
    for (const char* const name : {"app/Ontwerpen", "app/Collection", "out/Pictures", "here"})
        fs::create_directories(folder / name);
    fs::copy(dataFolder, folder / "app", fs::copy_options::recursive);
    fs::current_path(folder / "here");  // What is named by chance lies here.

    QtFontEngine fonts;
    const MediaCodecs codecs;
    const player::Libraries libraries{fonts, codecs, MakeCoinlet, folder / "state"};
    const player::Places places(folder / "app", folder / "out", folder.Path());
    std::ofstream lines(script);
    std::cout << "seed " << seed << ", steps in " << script.string() << std::endl;  // Before any crash.
    test::RandomUser user(test::Dice(seed), rounds, std::move(favourites), places, lines);
    const bool isSound = player::ScriptRun(script.string(), user, places, libraries, std::cout).Play();
    fs::current_path(fs::temp_directory_path());
    std::cout << user.Steps() << " steps\n";
    const bool isAllUsed = PrintReach(user.Used());
    return isSound && user.Steps() == rounds && (isAllUsed || rounds < longRun);
}

}  // namespace

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): a broken test bed may end it
    constexpr std::size_t usualRounds = 12000;
    constexpr unsigned long usualSeed = 1;
    constexpr int decimal = 10;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication qt(argc, argv);
    const std::size_t rounds = argc > 1 ? std::strtoul(argv[1], nullptr, decimal) : usualRounds;
    const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, decimal) : usualSeed;
    const fs::path script = fs::absolute("random_user." + std::to_string(seed) + ".play");
    constexpr int firstFavourite = 3;
    std::vector<std::string> favourites(argv + std::min(argc, firstFavourite), argv + argc);
    if (Play(script, rounds, static_cast<std::uint32_t>(seed), std::move(favourites))) {
        fs::remove(script);
        return EXIT_SUCCESS;
    }
    PrintEnd(script);
    std::cout << "all of it again: WITH_STATE=1 tests/scenarios/run_scenario.sh PLAYER data "
              << script.string() << '\n';
    return EXIT_FAILURE;
}
