#include "core/unfinished.h"

#include "core/main_form.h"

#include <algorithm>
#include <array>

namespace coinlet {

namespace {

// Tool buttons that open a dialog.
constexpr std::array unfinishedTools{3, 4, 7};

constexpr std::array<VistaButton MainForm::*, 1> unfinishedButtons{&MainForm::PlaatsKnop};

constexpr std::array<MenuItem MainForm::*, 8> unfinishedEntries{
    &MainForm::FileImport,     &MainForm::FilePrint,       &MainForm::ViewMyCollection,
    &MainForm::LibraryBorders, &MainForm::LibraryBackside, &MainForm::LibraryGlitter,
    &MainForm::ClipartGroot,   &MainForm::Symbolen};

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
}

}  // namespace coinlet
