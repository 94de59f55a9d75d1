#include "base/files.h"
#include "base/order_key.h"
#include "base/text.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

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

/// One of the patterns of a list. Nearly all ask for the end of the name alone, and those are quick: a folder
/// may hold ten thousand names.
class Rule {
public:
    explicit Rule(std::string_view pattern) : letters_(Folded(pattern)) {
        const std::string_view behindStar = pattern.substr(pattern.starts_with('*') ? 1 : 0);
        if (pattern.starts_with('*') && behindStar.find_first_of("*?") == std::string_view::npos)
            ending_ = LowerCase(behindStar);
    }
    /// `name` is in lower case.
    bool Fits(const std::string& name) const {
        return ending_ ? name.ends_with(*ending_) : Matches(Characters(name), letters_);
    }

private:
    Letters letters_;
    std::optional<std::string> ending_;
};

std::vector<Rule> Rules(std::string_view list) {
    std::vector<Rule> rules;
    while (!list.empty()) {
        const auto end = list.find(';');
        const auto pattern = TrimBlanks(list.substr(0, end));
        if (!pattern.empty()) rules.emplace_back(pattern);
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    return rules;
}

/// The names of the entries of `folder` that `wanted` says yes to, sorted.
template <class Wanted>
std::vector<std::string> Entries(const fs::path& folder, const Wanted& wanted) {
    struct Entry {
        std::string key, name;
    };
    std::vector<Entry> entries;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    while (!error && entry != fs::directory_iterator()) {
        std::string name = entry->path().filename().string();
        if (wanted(*entry, name)) entries.push_back({OrderKey(name), std::move(name)});
        entry.increment(error);
    }
    std::ranges::sort(entries, {}, &Entry::key);
    std::vector<std::string> names;
    names.reserve(entries.size());
    std::ranges::transform(entries, std::back_inserter(names),
                           [](Entry& sorted) { return std::move(sorted.name); });
    return names;
}

}  // namespace

std::vector<std::string> ListFiles(const fs::path& folder, std::string_view patterns) {
    const auto rules = Rules(patterns);
    return Entries(folder, [&](const fs::directory_entry& entry, const std::string& name) {
        const std::string lower = LowerCase(name);
        std::error_code error;
        return std::ranges::any_of(rules, [&](const Rule& rule) { return rule.Fits(lower); }) &&
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
