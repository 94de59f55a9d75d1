#include "core/unfinished.h"

#include "core/main_form.h"

#include <algorithm>
#include <array>

namespace coinlet {

namespace {

// Tool buttons that open a dialog.
constexpr std::array unfinishedTools{3, 4, 7};

constexpr std::array<VistaButton MainForm::*, 2> unfinishedButtons{&MainForm::OkKnop, &MainForm::PlaatsKnop};

constexpr std::array<MenuItem MainForm::*, 6> unfinishedEntries{
    &MainForm::FileImport,     &MainForm::LibraryBorders, &MainForm::LibraryBackside,
    &MainForm::LibraryGlitter, &MainForm::ClipartGroot,   &MainForm::Symbolen};

constexpr std::array<ControlArray<MenuItem> MainForm::*, 1> unfinishedMenus{&MainForm::FlipPic};

}  // namespace

bool IsUnfinished(const MainForm& main, const Control& control) {
    const auto isTool = [&](int index) { return &main.Knop[index] == &control; };
    const auto isButton = [&](VistaButton MainForm::*button) { return &(main.*button) == &control; };
    return std::ranges::any_of(unfinishedTools, isTool) || std::ranges::any_of(unfinishedButtons, isButton);
}

void DisableUnfinished(MainForm& main) {
    for (const int index : unfinishedTools)
        main.Knop[index].SetEnabled(false);
    for (const auto button : unfinishedButtons)
        (main.*button).SetEnabled(false);
    for (const auto entry : unfinishedEntries)
        (main.*entry).Enabled = false;
    for (const auto menu : unfinishedMenus) {
        ControlArray<MenuItem>& entries = main.*menu;
        for (int i = entries.First(); i <= entries.Last(); ++i) {
            if (entries[i].Entries().empty()) entries[i].Enabled = false;
        }
    }
}

}  // namespace coinlet
