#pragma once

#include "player/play.h"
#include "support/block_fonts.h"
#include "support/temporary_folder.h"
#include "surface/codecs.h"
#include "unit/player/every_control_form.h"

#include <sstream>
#include <string>

namespace coinlet::test {

/// Only bitmaps.
class NoCodecs : public PictureCodecs {
public:
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Bytes> EncodeJpeg(const Image&, int) const override { return std::nullopt; }
};

/// Plays scripts against the program of every control, in folders of their own.
class ScriptPlayer {
public:
    ScriptPlayer() { std::filesystem::create_directory(folder_ / "app"); }

    /// What the player prints for a script called "s.play", the script's folder left out.
    std::string Play(const std::string& script) {
        const auto file = folder_.Write("s.play", script);
        BlockFonts fonts;
        const NoCodecs codecs;
        const player::Libraries libraries{fonts, codecs, [](const Services& services) {
                                              return std::make_unique<EveryControlProgram>(services);
                                          }};
        std::ostringstream out;
        status_ = player::PlayAll({folder_ / "app", folder_ / "out", {file}}, libraries, out);
        std::string text = out.str();
        const std::string prefix = folder_.Path().string() + "/";
        for (auto at = text.find(prefix); at != std::string::npos; at = text.find(prefix))
            text.erase(at, prefix.size());
        return text;
    }
    int Status() const { return status_; }
    const TemporaryFolder& Folder() const { return folder_; }

private:
    TemporaryFolder folder_;
    int status_ = -1;
};

constexpr const char* passed = "1 passed, 0 failed\n";

/// What the player prints if the script fails with that line's text.
inline std::string Failed(const std::string& reason) {
    return "s.play:" + reason + "\n0 passed, 1 failed\n";
}

}  // namespace coinlet::test
