#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace coinlet::test {

/// A folder of its own for one test; it goes with all that it holds.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "coinlet-test-XXXXXX").string();
        if (::mkdtemp(path.data()) == nullptr) throw std::system_error(errno, std::generic_category(), path);
        path_ = path;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(path_, error);
    }

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

    /// Makes a file with this content and returns its path.
    std::filesystem::path Write(const std::filesystem::path& name, std::string_view content) const {
        auto path = path_ / name;
        std::ofstream file(path, std::ios::binary);
        file.write(content.data(), static_cast<std::streamsize>(content.size()));
        if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
        return path;
    }

    /// The content of a file in it; "(no file)" if there is none.
    std::string Read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        if (!file) return "(no file)";
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// The number of entries in it, hidden ones too.
    std::ptrdiff_t Count() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

private:
    std::filesystem::path path_;
};

}  // namespace coinlet::test
