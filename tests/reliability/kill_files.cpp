// kill_files PROGRAM KILLS [AT_ONCE [SEED]]
//
// The program is killed while it saves a design, exports one, writes its settings or the collection, at a
// random moment around the writing, again and again. Each file is the old one or the new one, byte for byte,
// and the next start leaves no stray. Prints what was found; exit status 1 if a file was torn or a stray
// stayed.

#include "seat.h"
#include "support/temporary_folder.h"
#include "surface/codecs.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <random>
#include <thread>

namespace coinlet::test {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t enterKey = 0xFF0D, leftKey = 0xFF51;
constexpr std::array rows{100, 300};  // of the two designs that are saved in turn
constexpr int fileMenu = 0, exportEntry = 4, viewMenu = 2, collectionEntry = 1;
constexpr int saveButtonX = 320, saveButtonY = 376;  // in the dialog of the collection

const std::string settingsStart = "Ivo Kestrell Software \xAE 2014\r\n----------------------------\r\n";

struct Findings {
    struct OfAKind {
        int kills = 0, old = 0, amidst = 0;
    };
    std::mutex mutex;
    std::map<std::string, OfAKind> kinds;
    int recovered = 0, faults = 0;
};

class Killer {
public:
    Killer(const fs::path& program, const fs::path& folder, unsigned seed, Findings& findings)
        : seat_(program, folder), random_(seed), findings_(findings) {}

    /// What the files are when nobody disturbs their writing.
    void LearnWholeFiles() {
        for (std::size_t design = 0; design < rows.size(); ++design) {
            for (const bool exports : {false, true}) {
                seat_.Start();
                Draw(design);
                OpenSaving(exports);
                const fs::path file = exports ? Jpeg() : Design();
                fs::remove(file);
                seat_.Key(enterKey);
                WaitFor([&] { return FileExists(file); }, "saved file");
                (exports ? jpegs_ : designs_)[design] = Content(file);
                seat_.Kill();
            }
        }
        Expect(designs_[0] != designs_[1] && jpegs_[0] != jpegs_[1], "designs that differ");
        StartAndLookAround();
    }

    void KillOnce() {
        constexpr std::array kinds{&Killer::KillASaving, &Killer::KillAnExport, &Killer::KillTheSettings,
                                   &Killer::KillTheCollection};
        (this->*kinds[random_() % kinds.size()])();
        StartAndLookAround();
    }

private:
    fs::path Design() const { return seat_.Designs() / "tag.pat"; }
    fs::path Jpeg() const { return seat_.Pictures() / "tag.jpg"; }
    fs::path Settings() const { return seat_.Application() / "Coinlet.ini"; }
    fs::path Catalogue() const { return seat_.Application() / "Collection/Collection.col"; }

    static std::string Content(const fs::path& file) {
        const auto bytes = ReadFile(file);
        return bytes ? std::string(bytes->begin(), bytes->end()) : "(no file)";
    }
    static void Put(const fs::path& file, std::string_view content) {
        if (ReplaceFile(file, AsBytes(content))) throw std::runtime_error("can't write " + file.string());
    }

    void Expect(bool holds, const std::string& what) {
        if (holds) return;
        const std::lock_guard lock(findings_.mutex);
        ++findings_.faults;
        std::printf("fault: there are no %s\n", what.c_str());
    }

    void Draw(std::size_t design) const {
        const auto tool = seat_.PlaceOf(seat_.Form().Knop[0], 20, 14);
        const auto at = [&](int x) { return seat_.PlaceOf(seat_.Form().Pic, x, rows.at(design)); };
        seat_.ClickAt(tool.x, tool.y);
        seat_.MoveTo(at(100).x, at(100).y);
        seat_.Press();
        seat_.MoveTo(at(400).x, at(400).y);
        seat_.Release();
        seat_.MoveTo(1108, 738);
        WaitFor([&] { return seat_.ColourAt(at(250)) == 0; }, "stroke");
    }
    void OpenSaving(bool exports) const {
        if (exports) {
            seat_.ChooseByKeys(fileMenu, exportEntry);
        } else {
            seat_.KeyWithControl('s');
        }
        seat_.Front(2);
        seat_.Type("tag");
    }

    /// Kills the program at a random moment from now on, and judges the file.
    void KillAndJudge(const std::string& kind, const fs::path& file, const std::string& before,
                      const std::string& after) {
        double& usual = usual_.try_emplace(kind, 15000.0).first->second;
        const auto pause =
            static_cast<int>(usual * std::uniform_real_distribution<double>(0.5, 1.5)(random_));
        std::this_thread::sleep_for(std::chrono::microseconds(pause));
        seat_.Kill();
        const std::string found = Content(file);
        const bool amidst = HasStrays(file.parent_path());
        // How long it takes until the program writes depends on what else the machine does.
        usual = found == before ? usual * 1.15 : usual / 1.15;
        Expect(found == before || found == after,
               "whole files: " + file.string() + " has " + std::to_string(found.size()) + " bytes");
        const std::lock_guard lock(findings_.mutex);
        auto& counted = findings_.kinds[kind];
        ++counted.kills;
        if (found == before) ++counted.old;
        if (amidst) ++counted.amidst;
    }
    void KillASave(const std::string& kind, bool exports, const fs::path& file,
                   const std::array<std::string, 2>& whole) {
        const std::string before = Content(file);
        const std::size_t next = before == whole[0] ? 1 : 0;
        Draw(next);
        OpenSaving(exports);
        seat_.Key(enterKey);
        seat_.Front(3);
        // The question stands on No.
        seat_.Key(leftKey);
        seat_.Key(enterKey);
        KillAndJudge(kind, file, before, whole.at(next));
    }
    void KillASaving() { KillASave("a design", false, Design(), designs_); }
    void KillAnExport() { KillASave("an export", true, Jpeg(), jpegs_); }
    void KillTheSettings() {
        const std::string after = Content(Settings()), before = settingsStart + "English\r\n";
        Put(Settings(), before);
        seat_.Send(SIGTERM);
        KillAndJudge("the settings", Settings(), before, after);
        // The next start is in the language whose names this program knows.
        Put(Settings(), after);
    }
    void KillTheCollection() {
        std::string before;
        for (int number = 1; number <= 5000; ++number)
            before += '"' + std::to_string(10000 + number) + "\"\r\n";
        Put(Catalogue(), before);
        seat_.ChooseByKeys(viewMenu, collectionEntry);
        const auto dialog = seat_.Front(2);
        seat_.Type("zz");
        seat_.Key(enterKey);
        seat_.ClickAt(dialog.x + saveButtonX, dialog.y + saveButtonY);
        KillAndJudge("the collection", Catalogue(), before, before + "\"zz\"\r\n");
    }

    static bool HasStrays(const fs::path& folder) {
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().filename().string().starts_with(".~")) return true;
        return false;
    }
    /// The next start: what it found is in the store, and what it didn't need is gone.
    void StartAndLookAround() {
        seat_.Start();
        for (const fs::path& folder :
             {seat_.Application(), seat_.Designs(), Catalogue().parent_path(), seat_.Pictures()})
            Expect(!HasStrays(folder), "clean folders: " + folder.string());
        for (const std::string& name : ListFiles(seat_.Designs(), "Hersteld *.pat")) {
            const fs::path file = seat_.Designs() / name;
            const auto picture = DecodeBmp(ReadFile(file).value_or(Bytes()));
            Expect(picture && picture->Width() == 700, "whole designs that came back");
            static_cast<void>(DeleteFile(file));
            const std::lock_guard lock(findings_.mutex);
            ++findings_.recovered;
        }
        if (fs::exists(seat_.State())) Expect(fs::is_empty(seat_.State()), "snapshots that were taken");
    }

    Seat seat_;
    std::mt19937 random_;
    Findings& findings_;
    std::array<std::string, 2> designs_, jpegs_;
    std::map<std::string, double>
        usual_;  ///< Microseconds after which about half of the kills come too late.
};

int Run(const fs::path& program, int kills, int atOnce, unsigned seed) {
    const TemporaryFolder folder;
    Findings findings;
    std::atomic<int> left = kills;
    std::vector<std::thread> users;
    for (int i = 0; i < atOnce; ++i) {
        users.emplace_back([&, i] {
            try {
                const fs::path own = folder / std::to_string(i);
                fs::create_directory(own);
                Killer killer(program, own, seed * 1000 + static_cast<unsigned>(i), findings);
                killer.LearnWholeFiles();
                while (left-- > 0)
                    killer.KillOnce();
            } catch (const std::exception& fault) {
                const std::lock_guard lock(findings.mutex);
                ++findings.faults;
                std::printf("fault: %s\n", fault.what());
            }
        });
    }
    for (auto& user : users)
        user.join();
    int done = 0;
    for (const auto& [kind, counted] : findings.kinds) {
        std::printf("%s: %d kills, %d left the old file, %d the new one; %d came amidst the writing\n",
                    kind.c_str(), counted.kills, counted.old, counted.kills - counted.old, counted.amidst);
        done += counted.kills;
    }
    std::printf("%d kills, %d designs came back, %d faults\n", done, findings.recovered, findings.faults);
    return findings.faults > 0 || done < kills ? 1 : 0;
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("kill_files PROGRAM KILLS [AT_ONCE [SEED]]\n", stderr);
        return 2;
    }
    const int kills = std::atoi(argv[2]);
    const int atOnce = argc > 3 ? std::atoi(argv[3]) : 1;
    const unsigned seed = argc > 4 ? static_cast<unsigned>(std::atoi(argv[4])) : 1U;
    return coinlet::test::Run(argv[1], kills, std::min(kills, atOnce), seed);
}
