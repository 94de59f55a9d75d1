#pragma once

#include <cstdint>

namespace coinlet {

class MainForm;

/// Counts the changes to what a design consists of: its canvas, its side panel, its info text. Two designs of
/// one run that count the same are the same; a change that is taken back counts all the same.
struct DesignRevision {
    std::uint64_t canvas = 0, sidePanel = 0, infoText = 0;

    friend bool operator==(const DesignRevision&, const DesignRevision&) = default;
};

DesignRevision RevisionOf(const MainForm& main);

}  // namespace coinlet
