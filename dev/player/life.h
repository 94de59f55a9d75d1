#pragma once

#include "player/answers.h"
#include "player/desk.h"
#include "player/places.h"
#include "player/player_platform.h"
#include "player/printer_record.h"
#include "player/program.h"
#include "player/virtual_clock.h"

#include <filesystem>
#include <vector>

namespace coinlet::player {

/// What the player is made with, once for all scripts.
struct Libraries {
    FontEngine& fonts;
    const PictureCodecs& codecs;
    ProgramMaker makeProgram;
    /// Where work that isn't stored is kept for the next start; with an empty one it isn't.
    std::filesystem::path recoveryFolder = {};
};

/// The world around the program, as one script finds and changes it. It outlives the program when that is
/// started again.
struct World {
    Places places;
    VirtualClock clock;
    OwnClipboard clipboard;
    Answers answers;
    ScreenState screen;  ///< What the next start finds.
};

/// One life of the program, from its start to its end, with all that it leaves behind for the script to ask
/// about.
struct Life {
    Life(ScriptReader& reader, World& world, const Libraries& libraries)
        : answers(world.answers),
          desktop(world.places),
          platform(reader, world.clock, world.answers),
          services{world.places.Application(),
                   platform,
                   libraries.fonts,
                   libraries.codecs,
                   world.clock,
                   desktop,
                   world.clipboard,
                   printer,
                   grab,
                   libraries.recoveryFolder} {
        platform.Screen = world.screen;
        program = libraries.makeProgram(services);
    }

    const Answers& answers;  ///< Those of the world.
    RecordingDesktop desktop;
    PrinterRecord printer;
    PlayerPlatform platform;
    PictureGrab grab{platform.pointer};
    Services services;
    std::unique_ptr<Program> program;
};

}  // namespace coinlet::player
