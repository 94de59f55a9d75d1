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
/// double click on a row, or Enter, goes there, Backspace goes up. Another path raises `Change`, and so does
/// the folder in use when its own row is chosen that way. At first it has no folder and no rows.
class DirListBox : public ListBox {
public:
    DirListBox(Container& container, std::string_view name, int index = noIndex);

    const std::string& Path() const { return path_; }
    /// A path that is no folder is passed over.
    void SetPath(const std::string& path);
    /// Starts with a folder, which raises nothing. False, with everything as it was, if it is no folder.
    bool StartWith(const std::string& path);
    /// The folder behind a row; empty outside the list.
    std::string TargetOf(int row) const;
    /// How far below the root the folder of a row lies.
    int DepthOf(int row) const;
    Event<> Change;

    void UserActivates() override;
    void KeyPressed(int code, int shift) override;
    bool PassesEnterOn() const override { return false; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    void FillRows();

    std::string path_;
    std::vector<std::string> targets_;  ///< The folder behind each row.
};

/// The places to start from, as the desktop names them. Choosing another one raises `Change`, after `Click`;
/// the user's choice does so also on the chosen one, since he may have gone elsewhere meanwhile.
class DriveListBox : public ListBox {
public:
    DriveListBox(Container& container, std::string_view name, int index = noIndex);

    /// Lists these places, and chooses without an event the innermost one that `folder` lies in, if any.
    void StartWith(const std::vector<std::string>& places, std::string_view folder);
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

/// True if `path` is `folder` or lies in it; both in full, without a separator at the end.
bool LiesIn(std::string_view path, std::string_view folder);

}  // namespace coinlet
