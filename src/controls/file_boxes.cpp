#include "controls/file_boxes.h"

#include "base/files.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <ranges>
#include <sstream>

namespace coinlet {

namespace {

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

/// The path in full, without "." and "..", and without a separator at its end.
std::string PlainPath(const fs::path& path) {
    std::error_code error;
    fs::path plain = fs::absolute(path, error).lexically_normal();
    if (!plain.has_filename() && plain.has_relative_path()) plain = plain.parent_path();
    return plain.string();
}

/// The user's home folder, or the root if he has none.
std::string HomeFolder() {
    const char* home = std::getenv("HOME");
    return home && IsFolder(home) ? PlainPath(home) : "/";
}

/// A field of the table of mounts: a backslash and three octal digits stand for a blank and its like.
std::string UnescapeMount(std::string_view field) {
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size() &&
            std::ranges::all_of(field.substr(i + 1, 3), isOctal)) {
            text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                      (field[i + 3] - '0'));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

std::string ReadMountTable() {
    std::ostringstream table;
    table << std::ifstream("/proc/self/mounts").rdbuf();
    return table.str();
}

}  // namespace

std::vector<std::string> RemovablePlaces(std::string_view mountTable) {
    std::vector<std::string> places;
    std::istringstream lines{std::string(mountTable)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device, point;
        fields >> device >> point;
        point = UnescapeMount(point);
        if (point.starts_with("/media/") || point.starts_with("/mnt/")) places.push_back(point);
    }
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

FileListBox::FileListBox(Container& container, std::string_view name, int index)
    : ListBox(container, name, index) {}

void FileListBox::SetPath(const std::string& path) {
    path_ = path;
    Refresh();
}

void FileListBox::SetPattern(const std::string& pattern) {
    pattern_ = pattern;
    Refresh();
}

void FileListBox::Refresh() {
    Clear();
    if (path_.empty()) return;
    for (const auto& name : ListFiles(path_, pattern_)) {
        AddItem(name);
    }
}

void FileListBox::VisitProperties(PropertyVisitor& visitor) {
    ListBox::VisitProperties(visitor);
    VisitProperty(
        visitor, "Path", PropertyKind::Text, [this] { return path_; },
        [this](const std::string& path) { SetPath(path); });
    VisitProperty(
        visitor, "Pattern", PropertyKind::Text, [this] { return pattern_; },
        [this](const std::string& pattern) { SetPattern(pattern); });
}

DirListBox::DirListBox(Container& container, std::string_view name, int index)
    : ListBox(container, name, index), path_(HomeFolder()) {
    FillRows();
}

void DirListBox::SetPath(const std::string& path) {
    if (path.empty() || !IsFolder(path)) return;
    const std::string plain = PlainPath(path);
    const bool another = plain != path_;
    path_ = plain;
    FillRows();
    if (another) Change();
}

void DirListBox::FillRows() {
    Clear();
    targets_.clear();
    const auto add = [this](const std::string& row, const fs::path& target) {
        AddItem(row);
        targets_.push_back(target.string());
    };
    fs::path above;
    for (const auto& part : fs::path(path_)) {
        above /= part;
        add(part.string(), above);
    }
    ChooseSilently(ListCount() - 1);
    for (const auto& name : ListFolders(path_)) {
        add(name, above / name);
    }
}

void DirListBox::UserActivates() {
    if (!Answers() || !Rows().Contains(ListIndex())) return;
    const std::string target = targets_[static_cast<std::size_t>(ListIndex())];
    ListBox::UserActivates();
    if (Answers()) SetPath(target);
}

void DirListBox::VisitProperties(PropertyVisitor& visitor) {
    ListBox::VisitProperties(visitor);
    VisitProperty(
        visitor, "Path", PropertyKind::Text, [this] { return path_; },
        [this](const std::string& path) { SetPath(path); });
}

void DirListBox::VisitEvents(EventVisitor& visitor) {
    ListBox::VisitEvents(visitor);
    VisitEvent(visitor, "Change", Change);
}

DriveListBox::DriveListBox(Container& container, std::string_view name, int index)
    : ListBox(container, name, index) {
    const std::string home = HomeFolder();
    AddItem("/");
    if (home != "/") AddItem(home);
    for (const auto& place : RemovablePlaces(ReadMountTable())) {
        AddItem(place);
    }
    ChooseSilently(Rows().Find(home));
}

void DriveListBox::SetDrive(const std::string& path) {
    if (const int row = Rows().Find(path); row >= 0) SetListIndex(row);
}

void DriveListBox::RowChosen(bool another) {
    Click();
    if (another) Change();
}

void DriveListBox::VisitProperties(PropertyVisitor& visitor) {
    ListBox::VisitProperties(visitor);
    VisitProperty(
        visitor, "Drive", PropertyKind::Text, [this] { return Drive(); },
        [this](const std::string& path) { SetDrive(path); });
}

void DriveListBox::VisitEvents(EventVisitor& visitor) {
    ListBox::VisitEvents(visitor);
    VisitEvent(visitor, "Change", Change);
}

}  // namespace coinlet
