#include "store/design_files.h"

#include <algorithm>

namespace coinlet {

std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension) {
    std::string file = (Beneath(applicationFolder, designFolder) / "").string();
    return file.append(name).append(extension);
}

bool IsDesignName(std::string_view name) {
    return IsFileName(std::string(name).append(designPicture));
}

std::string StoredDesignFile(const fs::path& applicationFolder, std::string_view name,
                             std::string_view extension) {
    const fs::path usual = DesignFile(applicationFolder, name, extension);
    if (FileExists(usual)) return usual;
    const fs::path folder = usual.parent_path();
    for (const std::string& file : ListFiles(folder, "*" + std::string(extension)))
        if (WithoutExtension(file) == name) return folder / file;
    return usual;
}

std::string WithoutExtension(std::string_view fileName) {
    constexpr std::size_t extensionLength = 4;
    fileName.remove_suffix(std::min(fileName.size(), extensionLength));
    return std::string(fileName);
}

}  // namespace coinlet
