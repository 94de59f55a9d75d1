#include "store/design_files.h"

#include "base/program_folders.h"

namespace coinlet {

std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension) {
    std::string file = (applicationFolder / program_folder::designs / "").string();
    return file.append(name).append(extension);
}

bool IsDesignName(std::string_view name) {
    return IsFileName(std::string(name).append(designPicture));
}

std::optional<fs::path> DesignPicture(const fs::path& applicationFolder, std::string_view name) {
    if (!IsDesignName(name)) return {};
    const fs::path usual = DesignFile(applicationFolder, name, designPicture);
    if (auto found = FindFile(usual.parent_path(), usual.filename().string())) return found;
    return usual;
}

std::optional<fs::path> FindInfoText(const fs::path& picture) {
    const fs::path folder = picture.parent_path();
    const auto find = [&folder](const fs::path& file, std::string_view extension) {
        return FindFile(folder, WithoutExtension(file.filename().string()).append(extension));
    };
    auto text = find(picture, designInfoText);
    if (!text) return {};
    const auto owner = find(*text, designPicture);
    if (owner && *owner != picture) return {};
    return text;
}

fs::path InfoTextPath(const fs::path& picture) {
    if (auto found = FindInfoText(picture)) return *found;
    return picture.parent_path() / WithoutExtension(picture.filename().string()).append(designInfoText);
}

}  // namespace coinlet
