#include "core/unfinished.h"

#include "core/main_form.h"

#include <array>

namespace coinlet {

namespace {

constexpr std::array<MenuItem MainForm::*, 3> unfinishedEntries{&MainForm::FileImport,
                                                                &MainForm::ClipartGroot, &MainForm::Symbolen};

}  // namespace

void DisableUnfinished(MainForm& main) {
    for (const auto entry : unfinishedEntries)
        (main.*entry).Enabled = false;
}

}  // namespace coinlet
