#include "core/unfinished.h"

#include "core/main_form.h"

#include <array>

namespace coinlet {

namespace {

constexpr std::array<MenuItem MainForm::*, 1> unfinishedEntries{&MainForm::FileImport};

}  // namespace

void DisableUnfinished(MainForm& main) {
    for (const auto entry : unfinishedEntries)
        (main.*entry).Enabled = false;
}

}  // namespace coinlet
