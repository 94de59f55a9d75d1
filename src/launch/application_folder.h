#pragma once

#include <filesystem>
#include <optional>

namespace coinlet {

/// True where this user may make files. (Whoever is root may do so everywhere but on a disk that is
/// read-only.)
bool MayWrite(const std::filesystem::path& folder);

/// What decides where the program works.
struct Surroundings {
    std::filesystem::path programFolder;   ///< The folder that the program itself lies in.
    std::filesystem::path userDataFolder;  ///< Where this user's programs keep their data; may be empty.
    /// The folder that the user named on the command line.
    std::optional<std::filesystem::path> named = std::nullopt;
    bool (*mayWrite)(const std::filesystem::path& folder) = MayWrite;
};

/// The application folder: all that the program reads and writes lies beneath it. That is
/// - the folder that was named, if one was;
/// - else the program's own, if it is one that can be carried anywhere (the delivered data lie beside the
///   program) and that this user may write to;
/// - else `coinlet-designer` in the user's data folder.
///
/// The first and the last are made where they are missing and filled from what was delivered, see
/// FillApplicationFolder. Where that can't be done in the user's data folder, as in a home that is
/// write-protected, it is the folder of the delivered data: nothing can be saved there, but the program
/// starts. For a folder that was named there is none: who names a folder looks for his designs in it.
std::optional<std::filesystem::path> ApplicationFolder(const Surroundings& surroundings);

/// Where the delivered data lie: beside the program, or in `../share/coinlet-designer` from there, as
/// packages install them. Empty if they are in neither place.
std::filesystem::path DeliveredFolder(const std::filesystem::path& programFolder);

/// Makes `folder` an application folder of the user's own, and brings it up to date at each further start:
/// - what the program only reads (pictures, fonts, texts, help) appears in it as links to the delivered
/// files;
///   new ones are added and those whose file is gone are removed, so an upgrade reaches every user;
/// - what the user may change or delete (designs, the collection) is copied once. A list of what was handed
///   out, `.handed-out`, keeps deleted what he deleted; while it can't be read, nothing is handed out.
///
/// What the user put there is never touched: a name that is taken, by whatever, stays as it is. A folder that
/// holds delivered files of its own instead of links, since somebody carried it there whole, is left alone.
/// False if the folder can't be made; a file that can't be linked or copied is left out in silence.
bool FillApplicationFolder(const std::filesystem::path& folder, const std::filesystem::path& delivered);

}  // namespace coinlet
