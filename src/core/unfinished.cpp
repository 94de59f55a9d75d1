#include "core/unfinished.h"

#include "core/main_form.h"
#include "core/tool_codes.h"

#include <algorithm>
#include <array>

namespace coinlet {

namespace {

constexpr std::array unfinishedTools{arcTool};

constexpr std::array<MenuItem MainForm::*, 3> unfinishedEntries{&MainForm::FileImport,
                                                                &MainForm::ClipartGroot, &MainForm::Symbolen};

}  // namespace

bool IsUnfinished(const MainForm& main, const Control& control) {
    const auto isTool = [&](int index) { return &main.Knop[index] == &control; };
    return std::ranges::any_of(unfinishedTools, isTool);
}

void DisableUnfinished(MainForm& main) {
    for (const int index : unfinishedTools)
        main.Knop[index].SetEnabled(false);
    for (const auto entry : unfinishedEntries)
        (main.*entry).Enabled = false;
}

}  // namespace coinlet
