#include "base/files.h"
#include "base/text.h"

#include <algorithm>

namespace coinlet {

namespace {

using Letters = std::vector<std::string>;

Letters Folded(std::string_view text) {
    return Characters(LowerCase(text));
}

bool Matches(const Letters& name, const Letters& pattern) {
    std::size_t at = 0, rule = 0;
    std::size_t afterStar = pattern.size() + 1, starTook = 0;  // the latest "*" and the end of what it took
    while (at < name.size()) {
        if (rule < pattern.size() && pattern[rule] == "*") {
            afterStar = ++rule;
            starTook = at;
        } else if (rule < pattern.size() && (pattern[rule] == "?" || pattern[rule] == name[at])) {
            ++rule;
            ++at;
        } else if (afterStar <= pattern.size()) {
            rule = afterStar;  // The star takes one more.
            at = ++starTook;
        } else {
            return false;
        }
    }
    while (rule < pattern.size() && pattern[rule] == "*")
        ++rule;
    return rule == pattern.size();
}

std::vector<Letters> Patterns(std::string_view list) {
    std::vector<Letters> patterns;
    while (!list.empty()) {
        const auto end = list.find(';');
        const auto pattern = TrimBlanks(list.substr(0, end));
        if (!pattern.empty()) patterns.push_back(Folded(pattern));
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    return patterns;
}

/// The names of the entries of `folder` that `wanted` says yes to, sorted.
template <class Wanted>
std::vector<std::string> Entries(const fs::path& folder, const Wanted& wanted) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    while (!error && entry != fs::directory_iterator()) {
        std::string name = entry->path().filename().string();
        if (wanted(*entry, name)) names.push_back(std::move(name));
        entry.increment(error);
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

}  // namespace

std::vector<std::string> ListFiles(const fs::path& folder, std::string_view patterns) {
    const auto rules = Patterns(patterns);
    return Entries(folder, [&](const fs::directory_entry& entry, const std::string& name) {
        const Letters letters = Folded(name);
        std::error_code error;
        return std::any_of(rules.begin(), rules.end(),
                           [&](const Letters& rule) { return Matches(letters, rule); }) &&
               entry.is_regular_file(error);
    });
}

std::optional<fs::path> FindFile(const fs::path& folder, std::string_view name) {
    if (!IsFileName(name)) return {};
    if (fs::path file = folder / name; FileExists(file)) return file;
    const std::string lower = LowerCase(name);
    const auto alike = Entries(folder, [&lower](const fs::directory_entry& entry, const std::string& other) {
        std::error_code error;
        return LowerCase(other) == lower && entry.is_regular_file(error);
    });
    if (alike.empty()) return {};
    return folder / alike.front();
}

std::vector<std::string> ListFolders(const fs::path& folder) {
    return Entries(folder, [](const fs::directory_entry& entry, const std::string& name) {
        std::error_code error;
        return !name.starts_with('.') && entry.is_directory(error);
    });
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    return Matches(Folded(name), Folded(pattern));
}

}  // namespace coinlet
