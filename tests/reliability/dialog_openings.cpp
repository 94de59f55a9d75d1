// dialog_openings PROGRAM [OPENINGS [SETTLED [DIALOG...]]]
//
// Somebody who opens each dialog of the program again and again, and closes it by Escape, by pointer and keys
// of the window system: the program's memory doesn't grow. Prints a table; exit status 1 if it grew by 5 MB
// or more after the first SETTLED openings of a dialog. DIALOG are names of forms, if not all are wanted.

#include "app/dialogs.h"
#include "memory_growth.h"
#include "seat.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <variant>
#include <vector>

namespace coinlet::test {
namespace {

constexpr std::uint32_t escapeKey = 0xFF1B;

/// What the user does for a dialog.
class Opener {
public:
    explicit Opener(const Seat& seat) : seat_(seat) {}
    void operator()(MenuItem MainForm::*entry) const { seat_.ChooseByKeys(seat_.Form().*entry); }
    void operator()(ToolButton button) const { Click(seat_.Form().Knop[button.number]); }
    void operator()(FillColourField) const { Click(seat_.Form().ColorLabel); }

private:
    void Click(const Control& control) const {
        const auto place = seat_.PlaceOf(control, 20, 14);
        seat_.ClickAt(place.x, place.y);
        seat_.MoveAway();
    }
    const Seat& seat_;
};

std::string NameOf(const DialogRow& row) {
    std::string name(row.form);
    // One form may be the dialog of several entries.
    const auto menu = std::get_if<MenuItem MainForm::*>(&row.opener);
    if (menu && *menu == &MainForm::FileExport) name += " (export)";
    return name;
}

bool Run(const fs::path& program, int openings, int settled, const std::vector<std::string>& wanted) {
    const TemporaryFolder folder;
    Seat seat(program, folder.Path());
    bool isGood = true;
    int opened = 0;
    for (const DialogRow& row : Dialogs()) {
        if (!wanted.empty() && std::ranges::find(wanted, row.form) == wanted.end()) continue;
        ++opened;
        // Each begins with a fresh program, so that none hides in what another one left.
        seat.Start();
        MemoryGrowth growth(NameOf(row), seat.Process(), settled, openings);
        for (int i = 0; i < openings; ++i) {
            std::visit(Opener(seat), row.opener);
            seat.Front(2);
            seat.Key(escapeKey);
            seat.Front(1);
            growth.Done();
        }
        isGood = growth.Judge() && isGood;
        seat.Kill();
    }
    if (opened == 0) std::puts("no such dialog");
    return isGood && opened > 0;
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("dialog_openings PROGRAM [OPENINGS [SETTLED [DIALOG...]]]\n", stderr);
        return 2;
    }
    const int openings = argc > 2 ? std::atoi(argv[2]) : 1000;
    const int settled = argc > 3 ? std::atoi(argv[3]) : 500;
    try {
        const std::vector<std::string> wanted(argv + std::min(argc, 4), argv + argc);
        return coinlet::test::Run(argv[1], openings, settled, wanted) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::printf("fault: %s\n", fault.what());
        return 1;
    }
}
