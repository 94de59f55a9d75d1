// The whole program: the input is what the random user decides, byte by byte. Whatever he does, the program
// stays sound. With COINLET_FUZZ_SCRIPT in the environment, the name of a file, his doings are written there
// as a script.
#include "coinlet_program.h"
#include "fuzz/random_user/random_user.h"
#include "fuzz/targets/targets.h"
#include "fuzz/toolkit.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "player/script_run.h"
#include "support/temporary_folder.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>

namespace coinlet::test {
namespace {

/// What every application folder is filled from.
constexpr const char* dataFolder = COINLET_DATA_FOLDER;

/// Small ones of the delivered files, a few of each folder: a folder is filled for each input.
void CopySomeOf(const fs::path& data, const fs::path& application) {
    constexpr std::array folders{"Borders", "Cliparts", "Data", "Fonts", "Ontwerpen"};
    constexpr std::uintmax_t largest = 120'000;  // bytes
    constexpr std::size_t mostOfAKind = 3;
    for (const char* const folder : folders) {
        fs::create_directories(application / folder);
        const bool isNeeded = fs::path(folder) == "Data";
        std::size_t copied = 0;
        for (const std::string& name : ListFiles(data / folder, "*")) {
            if (fs::file_size(data / folder / name) > largest || (copied >= mostOfAKind && !isNeeded))
                continue;
            fs::copy_file(data / folder / name, application / folder / name);
            ++copied;
        }
    }
}

class Player {
public:
    Player() {
        StartToolkit();
        CopySomeOf(dataFolder, delivered_.Path());
    }

    Outcome Play(std::span<const std::uint8_t> bytes) const {
        const TemporaryFolder folder;
        for (const char* const name : {"app/Collection", "out/Pictures", "here"})
            fs::create_directories(folder / name);
        fs::copy(delivered_.Path(), folder / "app", fs::copy_options::recursive);
        const fs::path before = fs::current_path();
        fs::current_path(folder / "here");  // What is named by chance lies here.
        std::string wrong = Doings(bytes, player::Places(folder / "app", folder / "out", folder.Path()));
        fs::current_path(before);
        return {true, std::move(wrong)};
    }

private:
    static std::string Doings(std::span<const std::uint8_t> bytes, const player::Places& places) {
        constexpr std::size_t mostSteps = 150;
        QtFontEngine fonts;
        const MediaCodecs codecs;
        const player::Libraries libraries{fonts, codecs, MakeCoinlet};
        const char* const path = std::getenv("COINLET_FUZZ_SCRIPT");
        std::ofstream script(path ? path : "/dev/null");
        std::ostringstream said;
        // The first byte says whether he keeps to what users can do.
        const bool isLawless = !bytes.empty() && bytes[0] % 4 == 3;
        RandomUser user(Dice(bytes.subspan(bytes.empty() ? 0 : 1)), mostSteps, {}, places, script);
        if (isLawless) user.BeLawless();
        const bool isSound = player::ScriptRun("input", user, places, libraries, said).Play();
        return isSound ? "" : said.str();
    }

    TemporaryFolder delivered_;
};

/// Decisions without a meaning; what they lead to, the fuzzer finds out.
std::vector<Bytes> Decisions() {
    std::vector<Bytes> files;
    constexpr std::size_t count = 4, length = 120;
    std::uint32_t state = 1;
    for (std::size_t i = 0; i < count; ++i) {
        Bytes file{static_cast<std::uint8_t>(i)};
        while (file.size() < length)
            file.push_back(static_cast<std::uint8_t>((state = state * 1664525 + 1013904223) >> 24));
        files.push_back(std::move(file));
    }
    return files;
}

}  // namespace

Reader ProgramReader() {
    return {"program", Decisions(),
            [player = std::make_shared<Player>()](std::span<const std::uint8_t> bytes) {
                return player->Play(bytes);
            }};
}

}  // namespace coinlet::test
