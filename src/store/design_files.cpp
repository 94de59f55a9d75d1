#include "store/design_files.h"

#include <algorithm>

namespace coinlet {

std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension) {
    std::string file = (Beneath(applicationFolder, "\\Ontwerpen") / "").string();
    return file.append(name).append(extension);
}

std::optional<fs::path> DesignPath(const fs::path& applicationFolder, std::string_view name,
                                   std::string_view extension) {
    if (!IsFileName(std::string(name).append(extension))) return {};
    return DesignFile(applicationFolder, name, extension);
}

std::string WithoutExtension(std::string_view fileName) {
    constexpr std::size_t extensionLength = 4;
    fileName.remove_suffix(std::min(fileName.size(), extensionLength));
    return std::string(fileName);
}

}  // namespace coinlet
