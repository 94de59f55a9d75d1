#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace coinlet::player {

/// Where the files of a script lie: the application folder that the program runs in, the folder that takes
/// what the script makes, and the folder of the script itself. Scripts never tell where these are on the
/// disk, so that they mean the same everywhere.
class Places {
public:
    Places(const std::filesystem::path& application, const std::filesystem::path& out,
           const std::filesystem::path& script);

    const std::filesystem::path& Application() const { return application_; }
    const std::filesystem::path& Out() const { return out_; }
    /// The user's picture folder.
    std::filesystem::path Pictures() const { return out_ / "Pictures"; }

    /// A path of a script: beneath the application folder; with "@out" in front beneath the output folder;
    /// an absolute one as it is.
    std::filesystem::path Resolve(const std::string& text) const { return Beneath(application_, text); }
    std::filesystem::path InOut(const std::string& text) const { return Beneath(out_, text); }
    /// A file of the application folder if it is there, else one beside the script if that is there, else
    /// what it would be in the application folder.
    std::filesystem::path Found(const std::string& text) const;
    std::filesystem::path BesideScript(const std::string& text) const { return Beneath(script_, text); }

    /// A text as a script shows and compares it: a path in the application folder as the part behind that,
    /// with "/"; one in the output folder with "@out" in front; anything else as it is.
    std::string Shown(const std::string& text) const;
    /// The same for a text that a script expects, where "@out" may stand in front.
    std::string ShownExpected(const std::string& text) const;

private:
    std::filesystem::path Beneath(const std::filesystem::path& folder, const std::string& text) const;

    std::filesystem::path application_, out_, script_;
};

}  // namespace coinlet::player
