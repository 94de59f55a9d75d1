#pragma once

#include "controls/platform.h"
#include "core/session.h"

#include <filesystem>

namespace coinlet {

class Clipboard;
class Clock;
class Desktop;
class PictureCodecs;
class Printer;
class ScreenGrab;
class MainForm;
class PlaatjesForm;

/// What the program is handed by whoever runs it: the windows, the desktop and the libraries behind its
/// interfaces. All must outlive the program.
struct Services {
    std::filesystem::path applicationFolder;
    Platform& platform;
    FontEngine& fonts;
    const PictureCodecs& codecs;
    const Clock& clock;
    Desktop& desktop;
    Clipboard& clipboard;
    Printer& printer;
    ScreenGrab& screenGrab;
    /// Where work that isn't stored is kept for the next start; with an empty one it isn't.
    std::filesystem::path recoveryFolder = {};

    FormServices ForForms() const { return {platform, fonts}; }
};

/// What every subsystem is handed: the services, the session, the main form and the stock pictures.
struct Context {
    const Services& services;
    Session& session;
    MainForm& main;
    PlaatjesForm& plaatjes;
};

}  // namespace coinlet
