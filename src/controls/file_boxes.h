#pragma once

#include "controls/list_box.h"

#include <string>

namespace coinlet {

/// The files of a folder that match a pattern, in the order of their names. Its rows are read anew whenever
/// path or pattern is assigned; a folder that can't be read gives none.
class FileListBox : public ListBox {
public:
    FileListBox(Container& container, std::string_view name, int index = noIndex);

    const std::string& Path() const { return path_; }
    void SetPath(const std::string& path);
    /// Patterns parted by semicolons, "*.bmp;*.jpg"; at first "*".
    const std::string& Pattern() const { return pattern_; }
    void SetPattern(const std::string& pattern);
    void Refresh();

    void VisitProperties(PropertyVisitor& visitor) override;

private:
    std::string path_;
    std::string pattern_ = "*";
};

/// The folder in use: the folders above it, from the root on, itself, which is chosen, then those in it. A
/// double click on a row goes there. Another path raises `Change`. It starts in the user's home.
class DirListBox : public ListBox {
public:
    DirListBox(Container& container, std::string_view name, int index = noIndex);

    const std::string& Path() const { return path_; }
    /// A path that is no folder is passed over.
    void SetPath(const std::string& path);
    Event<> Change;

    void UserActivates() override;
    bool PassesEnterOn() const override { return false; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    void FillRows();

    std::string path_;
    std::vector<std::string> targets_;  ///< The folder behind each row.
};

/// The places to start from: the root, the user's home, which is chosen at first, and what is mounted below
/// /media and /mnt. Choosing another one raises `Change`, after `Click`.
class DriveListBox : public ListBox {
public:
    DriveListBox(Container& container, std::string_view name, int index = noIndex);

    /// The path of the place.
    const std::string& Drive() const { return List(ListIndex()); }
    /// A path that isn't listed is passed over.
    void SetDrive(const std::string& path);
    Event<> Change;

    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

protected:
    void RowChosen(bool another) override;
};

/// The mount points below /media and /mnt in a table of mounts (a line a mount, the point its second field,
/// with blanks written as \040), sorted.
std::vector<std::string> RemovablePlaces(std::string_view mountTable);

}  // namespace coinlet
