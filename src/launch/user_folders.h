#pragma once

#include <filesystem>
#include <functional>

namespace coinlet {

/// Looks up a variable of the environment; a null pointer where it isn't set.
using Environment = std::function<const char*(const char* name)>;

/// Where this user's programs keep their data: `$XDG_DATA_HOME`, else `.local/share` in the home folder. A
/// variable that is empty or holds a relative path counts as not set, as the XDG Base Directory Specification
/// wants it. Empty where the user has no home either.
std::filesystem::path UserDataFolder(const Environment& environment);

/// Where they keep what should outlive a run but isn't worth carrying to another machine: `$XDG_STATE_HOME`,
/// else `.local/state` in the home folder, by the same rules.
std::filesystem::path UserStateFolder(const Environment& environment);

/// Makes a picture folder for a user who has none: `Pictures` in the home folder. Where the desktop names
/// one, as `XDG_PICTURES_DIR` in the file `user-dirs.dirs` of his settings, that is the one, be it there or
/// not. Whether the folder could be made isn't told.
void MakePictureFolder(const Environment& environment);

/// The program's own in it, which it makes when it needs it; empty if the user has none.
std::filesystem::path RecoveryFolder(const std::filesystem::path& userStateFolder);

}  // namespace coinlet
