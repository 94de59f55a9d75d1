#include "controls/file_boxes.h"

#include "base/files.h"

#include <iterator>
#include <system_error>

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

}  // namespace

bool LiesIn(std::string_view path, std::string_view folder) {
    if (folder == "/") return path.starts_with('/');
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
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
    : ListBox(container, name, index) {}

bool DirListBox::StartWith(const std::string& path) {
    if (path.empty() || !IsFolder(path)) return false;
    path_ = PlainPath(path);
    FillRows();
    return true;
}

void DirListBox::SetPath(const std::string& path) {
    const std::string before = path_;
    if (StartWith(path) && path_ != before) Change();
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

std::string DirListBox::TargetOf(int row) const {
    return Rows().Contains(row) ? targets_[static_cast<std::size_t>(row)] : std::string();
}

int DirListBox::DepthOf(int row) const {
    const fs::path target(TargetOf(row));
    return target.empty() ? 0 : static_cast<int>(std::distance(target.begin(), target.end())) - 1;
}

void DirListBox::UserActivates() {
    if (!Answers() || !Rows().Contains(ListIndex())) return;
    const std::string target = TargetOf(ListIndex());
    ListBox::UserActivates();
    if (!Answers()) return;
    if (target != path_) return SetPath(target);
    // What lies in it may have changed, or may not have been shown yet; it may also be gone.
    StartWith(target);
    Change();
}

void DirListBox::KeyPressed(int code, int shift) {
    ListBox::KeyPressed(code, shift);
    if (code == keyBackspace && Answers() && !path_.empty()) SetPath(fs::path(path_).parent_path());
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
    : ListBox(container, name, index) {}

void DriveListBox::StartWith(const std::vector<std::string>& places, std::string_view folder) {
    Clear();
    std::size_t innermost = 0;
    int chosen = -1;
    for (const std::string& place : places) {
        if (LiesIn(folder, place) && place.size() > innermost) {
            innermost = place.size();
            chosen = ListCount();
        }
        AddItem(place);
    }
    ChooseSilently(chosen);
}

void DriveListBox::SetDrive(const std::string& path) {
    if (const int row = Rows().Find(path); row >= 0) SetListIndex(row);
}

void DriveListBox::RowChosen(bool) {
    Click();
    Change();
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
