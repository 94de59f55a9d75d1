#include "fuzz/random_user/damage.h"

#include "player/values.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace coinlet::test {

namespace {

namespace fs = std::filesystem;

struct File {
    std::string name;  ///< As a word of a script.
    int size;          ///< Bytes, above 0.
};

using Lines = std::vector<std::string>;

Lines CutShort(Dice& dice, const File& file) {
    return {"cut-file " + file.name + " " + std::to_string(dice.Between(0, file.size - 1))};
}

/// Most formats have their header in the first 64 bytes; half of the changes lie there.
Lines ChangeBytes(Dice& dice, const File& file) {
    constexpr int header = 64;
    Lines lines;
    for (std::size_t i = 0; i <= dice.Below(4); ++i) {
        const int end = dice.OneIn(2) ? std::min(header, file.size) : file.size;
        lines.push_back("set-byte " + file.name + " " + std::to_string(dice.Between(0, end - 1)) + " " +
                        std::to_string(dice.Between(0, std::numeric_limits<std::uint8_t>::max())));
    }
    return lines;
}

Lines Empty(Dice&, const File& file) {
    return {"cut-file " + file.name + " 0"};
}

Lines PutFolder(Dice&, const File& file) {
    return {"delete-file " + file.name, "make-folder " + file.name};
}

Lines TakeAway(Dice&, const File& file) {
    return {"delete-file " + file.name};
}

Lines Lock(Dice&, const File& file) {
    return {"lock-file " + file.name};
}

constexpr Lines (*damages[])(Dice&, const File&) = {CutShort,  ChangeBytes, ChangeBytes, Empty,
                                                    PutFolder, TakeAway,    Lock};

/// The files with something in them, in an order that is the same on every disk.
std::vector<fs::path> FilesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.file_size() > 0) files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

}  // namespace

Damage DamageAThird(Dice& dice, const fs::path& application) {
    Damage damage;
    for (const fs::path& path : FilesIn(application)) {
        if (!dice.OneIn(3)) continue;
        const std::string name = path.lexically_relative(application).string();
        const File file{player::Quoted(name), static_cast<int>(fs::file_size(path))};
        const std::string kept = player::Quoted("@out/kept/" + name);
        damage.lines.push_back("copy-file " + file.name + " " + kept);
        std::ranges::move(dice.Pick(damages)(dice, file), std::back_inserter(damage.lines));
        damage.healing.push_back("delete-folder " + file.name);  // Whatever is there now.
        damage.healing.push_back("copy-file " + kept + " " + file.name);
    }
    damage.healing.push_back("delete-folder @out/kept");
    return damage;
}

}  // namespace coinlet::test
