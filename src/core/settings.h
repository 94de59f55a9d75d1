#pragma once

#include "base/files.h"

#include <optional>
#include <string>
#include <system_error>

namespace coinlet {

/// The language named in "Coinlet.ini" of the application folder: its third line, up to a comma. Nothing if
/// the file can't be read or has fewer lines.
std::optional<std::string> ReadLanguageSetting(const fs::path& applicationFolder);

/// Writes "Coinlet.ini" whole or not at all: two heading lines and the language.
[[nodiscard]] std::error_code WriteLanguageSetting(const fs::path& applicationFolder,
                                                   const std::string& languageName,
                                                   FileCalls& calls = SystemFileCalls());

}  // namespace coinlet
