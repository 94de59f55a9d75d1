#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace coinlet {

/// What the program asks of the desktop that it runs on.
class Desktop {
public:
    virtual ~Desktop() = default;
    /// Hands a path or an address to the desktop's default handler. Failures pass in silence.
    virtual void OpenDocument(const std::string& target) = 0;
    /// The login name.
    virtual std::string UserName() const = 0;
    /// The user's picture folder; it need not exist.
    virtual std::filesystem::path PictureFolder() const = 0;
    /// The folders that one starts from in search of a file: the root of the file system first, the user's
    /// home folder, what is mounted for him. Full paths, without a separator at the end.
    virtual std::vector<std::string> StartingPlaces() const { return {"/"}; }
};

}  // namespace coinlet
