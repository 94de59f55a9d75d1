#include "launch/application_folder.h"

#include "base/file_reading.h"
#include "base/program_folders.h"
#include "base/text.h"

#include <unistd.h>

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace coinlet {

namespace {

constexpr std::array readFolders{program_folder::borders, program_folder::cliparts, program_folder::data,
                                 program_folder::fonts,   program_folder::help,     program_folder::images};
constexpr std::array changedFolders{program_folder::designs, program_folder::collection};
constexpr std::string_view handedOutList = ".handed-out";
constexpr std::string_view ownFolder = "coinlet-designer";

bool MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    return fs::is_directory(folder, error);
}

bool HoldsDeliveredData(const fs::path& folder) {
    std::error_code error;
    return fs::is_directory(folder / program_folder::data, error);
}

/// All names in a folder, whatever they stand for.
std::set<std::string> Names(const fs::path& folder) {
    std::set<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        names.insert(entry->path().filename().string());
    return names;
}

/// A folder that came here whole has files where one that was filled has links.
bool WasCarriedHere(const fs::path& folder, const fs::path& delivered) {
    bool holdsFiles = false;
    for (const std::string& name : Names(delivered / program_folder::data)) {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(folder / program_folder::data / name, error);
        if (fs::is_symlink(status)) return false;
        holdsFiles = holdsFiles || fs::is_regular_file(status);
    }
    return holdsFiles;
}

/// True for a link of ours whose file is gone. Ours lead to a file of the same name in a folder of the same
/// name, wherever the program was installed when they were made; any other link is the user's.
bool IsStale(const fs::path& link) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(link, error))) return false;
    const fs::path target = fs::read_symlink(link, error);
    const bool isOurs = target.is_absolute() && target.filename() == link.filename() &&
                        target.parent_path().filename() == link.parent_path().filename();
    return isOurs && fs::status(target, error).type() == fs::file_type::not_found;
}

void LinkFiles(const fs::path& folder, const fs::path& delivered) {
    std::error_code error;
    if (!MakeFolder(folder)) return;
    std::set<std::string> taken = Names(folder);
    std::erase_if(taken, [&](const std::string& name) {
        return IsStale(folder / name) && fs::remove(folder / name, error);
    });
    for (const std::string& name : Names(delivered))
        if (!taken.contains(name)) fs::create_symlink(delivered / name, folder / name, error);
}

/// What was handed out so far, a line a file, such as "Ontwerpen/Hiker.pat". Nothing if there is a list that
/// can't be read: then nobody knows.
std::optional<std::set<std::string>> HandedOut(const fs::path& folder) {
    std::set<std::string> files;
    if (IsMissing(folder / handedOutList)) return files;
    const auto bytes = ReadFile(folder / handedOutList);
    if (!bytes) return std::nullopt;
    std::string line;
    for (const std::uint8_t byte : *bytes) {
        if (byte != '\n') {
            line += static_cast<char>(byte);
        } else {
            files.insert(std::exchange(line, {}));
        }
    }
    return files;
}

bool RememberHandedOut(const fs::path& folder, const std::set<std::string>& files) {
    std::string text;
    for (const std::string& file : files)
        text += file + '\n';
    return !ReplaceFile(folder / handedOutList, AsBytes(text));
}

void CopyFile(const fs::path& from, const fs::path& to) {
    if (const auto content = ReadFile(from)) static_cast<void>(ReplaceFile(to, *content));
}

void HandOut(const fs::path& folder, const fs::path& delivered) {
    const auto before = HandedOut(folder);
    if (!before) return;
    std::set<std::string> handedOut = *before;
    std::vector<fs::path> fresh;
    for (const std::string_view part : changedFolders) {
        if (!MakeFolder(folder / part)) continue;
        std::set<std::string> taken;
        for (const std::string& name : Names(folder / part))
            taken.insert(LowerCase(name));
        for (const std::string& name : ListFiles(delivered / part, "*")) {
            const fs::path file = fs::path(part) / name;
            if (!handedOut.insert(file.generic_string()).second) continue;
            if (!taken.contains(LowerCase(name))) fresh.push_back(file);
        }
    }
    if (handedOut.size() == before->size()) return;
    // The list comes first: a file that is missing after a crash is a smaller loss than one that the user
    // deleted and that comes back at every start.
    if (!RememberHandedOut(folder, handedOut)) return;
    for (const fs::path& file : fresh)
        CopyFile(delivered / file, folder / file);
}

}  // namespace

bool MayWrite(const fs::path& folder) {
    return ::access(folder.c_str(), W_OK) == 0;
}

fs::path DeliveredFolder(const fs::path& programFolder) {
    const fs::path installed = (programFolder / ".." / "share" / ownFolder).lexically_normal();
    for (const fs::path& folder : {programFolder, installed})
        if (HoldsDeliveredData(folder)) return folder;
    return {};
}

bool FillApplicationFolder(const fs::path& folder, const fs::path& delivered) {
    if (!MakeFolder(folder)) return false;
    if (WasCarriedHere(folder, delivered)) return true;
    for (const std::string_view part : readFolders)
        LinkFiles(folder / part, delivered / part);
    HandOut(folder, delivered);
    return true;
}

std::optional<fs::path> ApplicationFolder(const Surroundings& surroundings) {
    const fs::path found = DeliveredFolder(surroundings.programFolder);
    fs::path delivered = found.empty() ? surroundings.programFolder : found;
    const auto filled = [&](const fs::path& folder) -> std::optional<fs::path> {
        std::error_code error;
        const fs::path whole = fs::absolute(folder, error);
        if (error || !FillApplicationFolder(whole, delivered)) return std::nullopt;
        return whole;
    };
    if (surroundings.named) return filled(*surroundings.named);
    const bool isCarried = delivered == surroundings.programFolder;
    if (isCarried && surroundings.mayWrite(delivered)) return delivered;
    if (surroundings.userDataFolder.empty()) return delivered;
    return filled(surroundings.userDataFolder / ownFolder).value_or(delivered);
}

}  // namespace coinlet
