#include "libraries/library_file.h"

#include "base/text.h"

#include <algorithm>

namespace coinlet {

std::optional<fs::path> LibraryFile(const fs::path& folder, const std::string& name) {
    if (!IsFileName(name)) return {};
    if (fs::path exact = folder / name; FileExists(exact)) return exact;
    const std::string wanted = LowerCase(name);
    for (const std::string& file : ListFiles(folder, "*"))
        if (LowerCase(file) == wanted) return folder / file;
    return {};
}

std::string WithoutLastFour(std::string_view fileName) {
    constexpr std::size_t extensionLength = 4;
    fileName.remove_suffix(std::min(fileName.size(), extensionLength));
    return std::string(fileName);
}

}  // namespace coinlet
