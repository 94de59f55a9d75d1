#include "player/play.h"

#include "player/script_run.h"

#include <cstdlib>
#include <ostream>

namespace coinlet::player {

namespace fs = std::filesystem;

namespace {

/// The folder for what scripts make: the caller's, or one that goes again.
class OutFolder {
public:
    explicit OutFolder(const std::optional<fs::path>& given) : isTemporary_(!given) {
        std::error_code error;
        path_ = given ? *given : MakeTemporary();
        fs::create_directories(path_ / "Pictures", error);
        isThere_ = !path_.empty() && !error;
    }
    ~OutFolder() {
        std::error_code error;
        if (isTemporary_ && !path_.empty()) fs::remove_all(path_, error);
    }
    OutFolder(const OutFolder&) = delete;
    OutFolder& operator=(const OutFolder&) = delete;

    const fs::path& Path() const { return path_; }
    bool IsThere() const { return isThere_; }

private:
    static fs::path MakeTemporary() {
        std::string name = (fs::temp_directory_path() / "coinlet-play.XXXXXX").string();
        return mkdtemp(name.data()) ? fs::path(name) : fs::path();
    }

    fs::path path_;
    bool isTemporary_;
    bool isThere_ = false;
};

bool PlayScript(const fs::path& file, const Options& options, const fs::path& outFolder,
                const Libraries& libraries, std::ostream& out) {
    const auto script = ReadScript(file);
    if (!script) {
        out << file.string() << ": can't be read\n";
        return false;
    }
    ScriptLines lines(*script);
    return ScriptRun(script->name, lines, Places(options.folder, outFolder, script->folder), libraries, out)
        .Play();
}

}  // namespace

int PlayAll(const Options& options, const Libraries& libraries, std::ostream& out) {
    if (!fs::is_directory(options.folder)) {
        out << options.folder.string() << ": no folder\n";
        return exitUsage;
    }
    const OutFolder outFolder(options.out);
    if (!outFolder.IsThere()) {
        out << outFolder.Path().string() << ": can't be made\n";
        return exitUsage;
    }
    int passed = 0, failed = 0;
    for (const fs::path& file : options.scripts)
        ++(PlayScript(file, options, outFolder.Path(), libraries, out) ? passed : failed);
    out << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? exitPassed : exitFailed;
}

}  // namespace coinlet::player
