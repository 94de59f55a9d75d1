#include "store/design_files.h"

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

}  // namespace coinlet
