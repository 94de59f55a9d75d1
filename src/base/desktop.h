#pragma once

#include <filesystem>
#include <string>

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
};

}  // namespace coinlet
