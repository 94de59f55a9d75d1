#include "base/file_name.h"

#include <algorithm>
#include <cstddef>

namespace coinlet {

std::string WithoutExtension(std::string_view fileName) {
    constexpr std::size_t extensionLength = 4;
    fileName.remove_suffix(std::min(fileName.size(), extensionLength));
    return std::string(fileName);
}

}  // namespace coinlet
