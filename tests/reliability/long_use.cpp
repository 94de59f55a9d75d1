// long_use PROGRAM [CYCLES [SETTLED]]
//
// Somebody who draws, fills, writes, filters, takes back, saves and opens designs in the real program, by
// pointer and keys of the window system, hour after hour: the program's memory doesn't grow. Prints a table;
// exit status 1 if it grew by 5 MB or more after the first SETTLED cycles, or if the program didn't do what
// he asked for.

#include "memory_growth.h"
#include "seat.h"
#include "support/temporary_folder.h"
#include "surface/codecs.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>

namespace coinlet::test {
namespace {

constexpr std::uint32_t enterKey = 0xFF0D, leftKey = 0xFF51, downKey = 0xFF54;
constexpr std::uint32_t black = 0x000000, white = 0xFFFFFF;
constexpr int designs = 10;  // Of which each cycle replaces one.
constexpr int negativeFilter = 5;
constexpr int textRow = 420;

class Designer {
public:
    Designer(const fs::path& program, const fs::path& folder) : seat_(program, folder) { seat_.Start(); }
    pid_t Process() const { return seat_.Process(); }

    void Cycle() {
        row_ = 60 + cycle_ % 200;
        StartAnew();
        Draw();
        Fill();
        Write();
        FilterAndTakeBack();
        const fs::path file = Save();
        Judge(file);
        Open();
        ++cycle_;
    }

private:
    void ClickOn(const Control& control, int x, int y) const {
        const auto place = seat_.PlaceOf(control, x, y);
        seat_.ClickAt(place.x, place.y);
    }
    void ClickOnTool(int tool) const { ClickOn(seat_.Form().Knop[tool], 20, 14); }
    std::uint32_t ColourAt(int x, int y) const {
        return seat_.ColourAt(seat_.PlaceOf(seat_.Form().Pic, x, y));
    }
    /// Waits until a pixel of the canvas has a colour; nothing may cover it.
    void Sees(int x, int y, std::uint32_t colour, const std::string& what) const {
        seat_.MoveAway();
        WaitFor([&] { return ColourAt(x, y) == colour; }, what + " in cycle " + std::to_string(cycle_));
    }

    void StartAnew() const {
        seat_.KeyWithControl('n');
        seat_.Front(2);
        seat_.Key(enterKey);
        seat_.Front(1);
        Sees(250, row_, white, "empty canvas");
    }
    /// A line that parts the canvas.
    void Draw() const {
        ClickOnTool(0);
        const auto at = [&](int x) { return seat_.PlaceOf(seat_.Form().Pic, x, row_); };
        seat_.MoveTo(at(0).x, at(0).y);
        seat_.Press();
        seat_.MoveTo(at(250).x, at(250).y);
        seat_.MoveTo(at(499).x, at(499).y);
        seat_.Release();
        Sees(250, row_, black, "stroke");
    }
    void Fill() {
        ClickOnTool(5);
        ClickOn(seat_.Form().Pic, 250, row_ - 30);
        seat_.MoveAway();
        WaitFor([&] { return ColourAt(250, 5) != white; }, "fill");
        fill_ = ColourAt(250, 5);
    }
    void Write() const {
        ClickOnTool(8);
        ClickOn(seat_.Form().Text1, 30, 8);
        seat_.KeyWithControl('a');
        seat_.Type("tag" + std::to_string(cycle_));
        ClickOn(seat_.Form().PlaatsKnop, 20, 8);
        ClickOn(seat_.Form().Pic, 400, textRow);
        ClickOn(seat_.Form().ExitKnop, 20, 8);
    }
    void FilterAndTakeBack() const {
        seat_.ChooseByKeys(seat_.Form().Filter[negativeFilter]);
        Sees(250, 490, black, "negative");
        Sees(250, row_, white, "negative stroke");
        seat_.KeyWithControl('z');
        Sees(250, row_, black, "stroke that came back");
        Sees(250, 490, white, "ground that came back");
    }
    fs::path Save() const {
        const std::string name = "tag" + std::string(1, static_cast<char>('a' + cycle_ % designs));
        fs::path file = seat_.Designs() / (name + ".pat");
        const bool isThere = FileExists(file);
        seat_.KeyWithControl('s');
        seat_.Front(2);
        seat_.KeyWithControl('a');
        seat_.Type(name);
        seat_.Key(enterKey);
        if (isThere) {
            seat_.Front(3);
            // The question stands on No.
            seat_.Key(leftKey);
            seat_.Key(enterKey);
        }
        seat_.Front(1);
        return file;
    }
    /// What was stored is what he did in this cycle.
    void Judge(const fs::path& file) const {
        const auto picture = DecodeBmp(ReadFile(file).value_or(Bytes()));
        if (!picture) throw std::runtime_error("there is no design in " + file.string());
        const Colour fill = RGB(static_cast<int>(fill_ >> 16U & 255U), static_cast<int>(fill_ >> 8U & 255U),
                                static_cast<int>(fill_ & 255U));
        bool hasText = false;
        for (int y = textRow - 40; y < textRow + 20; ++y) {
            for (int x = 200; x < 499; ++x)
                hasText = hasText || picture->At(x, y) == coinlet::black;
        }
        if (picture->At(250, row_) == coinlet::black && picture->At(250, 5) == fill && hasText) return;
        throw std::runtime_error("the design of cycle " + std::to_string(cycle_) + " isn't what was drawn");
    }
    void Open() const {
        seat_.KeyWithControl('o');
        seat_.Front(2);
        for (int i = 0; i <= cycle_ % 3; ++i)
            seat_.Key(downKey);
        seat_.Key(enterKey);
        seat_.Front(1);
    }

    Seat seat_;
    int cycle_ = 0, row_ = 0;
    std::uint32_t fill_ = 0;
};

bool Run(const fs::path& program, int cycles, int settled) {
    const TemporaryFolder folder;
    Designer designer(program, folder.Path());
    MemoryGrowth growth("real program", designer.Process(), settled, cycles);
    for (int i = 0; i < cycles; ++i) {
        designer.Cycle();
        growth.Done();
    }
    return growth.Judge();
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("long_use PROGRAM [CYCLES [SETTLED]]\n", stderr);
        return 2;
    }
    const int cycles = argc > 2 ? std::atoi(argv[2]) : 800;
    const int settled = argc > 3 ? std::atoi(argv[3]) : 500;
    try {
        return coinlet::test::Run(argv[1], cycles, settled) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::printf("fault: %s\n", fault.what());
        return 1;
    }
}
