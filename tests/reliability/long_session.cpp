// long_session [CYCLES [SETTLED [LOST]]]
//
// A user who draws, fills, writes, filters, takes back, saves and opens designs for days, in the program
// without its windows: its memory doesn't grow. Prints a table; exit status 1 if it grew by 5 MB or more
// after the first SETTLED cycles. LOST bytes are kept for ever in each cycle, as a fault of the program
// would, to see that it is noticed.

#include "coinlet_program.h"
#include "controls/form.h"
#include "controls/menu.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "memory_growth.h"
#include "player/line_source.h"
#include "player/names.h"
#include "player/script_run.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <list>
#include <string>
#include <vector>

namespace coinlet::test {
namespace {

namespace fs = std::filesystem;

/// Designs in the store, of which each cycle replaces one.
constexpr int designs = 20;

/// The lines of all cycles, in the language of scripts.
class LongSession : public player::LineSource {
public:
    LongSession(MemoryGrowth& growth, int cycles, std::size_t lost)
        : growth_(growth), cycles_(cycles), lost_(lost) {}

    std::optional<player::ScriptLine> NextLine(player::Life* life) override {
        if (lines_.empty()) {
            if (cycle_ > 0) EndCycle(*life);
            if (cycle_ == cycles_) return std::nullopt;
            if (life) FindFilters(*life);
            PrepareCycle();
            ++cycle_;
        }
        std::string line = std::move(lines_.front());
        lines_.pop_front();
        return player::ScriptLine{cycle_, std::move(line)};
    }

private:
    void EndCycle(player::Life& life) {
        // What the player remembers for a script is none of the program's.
        life.platform.messages.Forget(0);
        life.desktop.documents.Forget(0);
        if (lost_ > 0) kept_.emplace_back(lost_, 'x');
        growth_.Done();
    }

    void FindFilters(const player::Life& life) {
        if (!filters_.empty()) return;
        for (const Element* const element : life.platform.FrontForm()->Elements()) {
            const auto* const entry = dynamic_cast<const MenuItem*>(element);
            if (!entry || !entry->CanBeChosen() || !entry->Entries().empty()) continue;
            const MenuItem* menu = entry;
            while (menu->Parent())
                menu = menu->Parent();
            if (menu->Name() == "Filters") filters_.push_back(player::FullNameOf(*entry));
        }
    }

    void Do(std::string line) { lines_.push_back(std::move(line)); }
    void ClickOnCanvas(int x, int y) {
        const std::string place = " Main.Pic 1 " + std::to_string(x) + " " + std::to_string(y);
        Do("press" + place);
        Do("release" + place);
    }

    /// Each cycle has its own figure, colour, text, font size and filter, so that all of them come in turn.
    void PrepareCycle() {
        const std::string name = "design " + std::to_string(cycle_ % designs);
        Do("answer yes");
        Do("click Main.FileNew");
        Do("expect Session.DesignName \"\"");
        Draw();
        Fill();
        Write();
        if (!filters_.empty()) Do("click " + filters_[static_cast<std::size_t>(cycle_) % filters_.size()]);
        Do("click Main.BewerkenUndo");
        Do("tick Main.Timer1");
        Do("expect Session.DesignChanged true");
        Do("click Main.FileSave");
        Do("set SaveForm.Text1.Text \"" + name + "\"");
        if (cycle_ >= designs) Do("answer yes");
        Do("click SaveForm.SaveKnop");
        Do("expect SaveForm.Loaded false");
        Do("expect-file \"Ontwerpen/" + name + ".pat\"");
        const int row = cycle_ * 7 % std::min(cycle_ + 1, designs);
        Do("click Main.FileOpen");
        Do("pick OpenFile.List1 " + std::to_string(row));
        Do("click OpenFile.OkKnop");
        Do("expect OpenFile.Loaded false");
        Do("expect Session.DesignChanged false");
    }

    void Draw() {
        constexpr int shapes = 16, places = 90;
        const int edge = 10 + cycle_ % places;
        Do("click Main.Knop(0)");
        Do("drag Main.Pic 0 " + std::to_string(edge) + " 499 " + std::to_string(edge));
        Do("pixel Main.Pic 250 " + std::to_string(edge) + " 0,0,0");
        Do("click Main.Vormen(" + std::to_string(1 + cycle_ % shapes) + ")");
        Do("drag Main.Pic 100 120 400 420");
    }
    void Fill() {
        constexpr int colours = 1000;
        Do("press Main.ColorLabel 1 5 5");
        Do("slide PMSForm.HScroll1 " + std::to_string(cycle_ * 13 % colours));
        Do("click PMSForm.OkKnop");
        Do("click Main.Knop(5)");
        ClickOnCanvas(250, 2);
        ClickOnCanvas(250, 270);
    }
    void Write() {
        constexpr std::array sizes{8, 14, 24, 40, 72};
        Do("click Main.Knop(8)");
        Do("set Main.Text1.Text \"Tag " + std::to_string(cycle_) + "\"");
        Do("set Main.Combo3.Text " +
           std::to_string(sizes.at(static_cast<std::size_t>(cycle_) % sizes.size())));
        Do("click Main.PlaatsKnop");
        Do("expect Session.TextPlacing true");
        ClickOnCanvas(350, 460);
        Do("expect Session.TextPlacing false");
        Do("click Main.ExitKnop");
    }

    MemoryGrowth& growth_;
    int cycles_, cycle_ = 0;
    std::size_t lost_;
    std::deque<std::string> lines_;
    std::vector<std::string> filters_;
    std::list<std::string> kept_;
};

bool Play(int cycles, int settled, std::size_t lost) {
    const TemporaryFolder folder;
    fs::copy(COINLET_DATA_FOLDER, folder / "app", fs::copy_options::recursive);
    fs::remove_all(folder / "app/Ontwerpen");
    for (const char* const name : {"app/Ontwerpen", "app/Collection", "out/Pictures"})
        fs::create_directories(folder / name);
    QtFontEngine fonts;
    const MediaCodecs codecs;
    const player::Libraries libraries{fonts, codecs, MakeCoinlet};
    const player::Places places(folder / "app", folder / "out", folder.Path());
    MemoryGrowth growth("session", ::getpid(), settled, cycles);
    LongSession session(growth, cycles, lost);
    const bool isSound =
        player::ScriptRun("cycle", session, places, libraries, std::cout).Play() && std::cout.flush();
    return growth.Judge() && isSound;
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): a broken test bed may end it
    constexpr int usualCycles = 10000, usualSettled = 500;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication toolkit(argc, argv);
    const int cycles = argc > 1 ? std::atoi(argv[1]) : usualCycles;
    const int settled = argc > 2 ? std::atoi(argv[2]) : usualSettled;
    const int lost = argc > 3 ? std::atoi(argv[3]) : 0;
    return coinlet::test::Play(cycles, settled, static_cast<std::size_t>(lost)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
