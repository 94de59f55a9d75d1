#pragma once

#include "app/application.h"
#include "core/accessible_names.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "media/system_clock.h"

#include <filesystem>

namespace coinlet {

class Shell;

/// The program as it stands on a desktop: before the windows, printers and clipboard of a shell, with the
/// fonts that are installed and the clock of the machine. To be made after the shell, which outlives it, and
/// started by `Shell::Run`.
class DesktopProgram {
public:
    /// All that it reads and writes lies beneath `applicationFolder`; what isn't stored it keeps in
    /// `recoveryFolder`, or with an empty one not at all.
    DesktopProgram(Shell& shell, const std::filesystem::path& applicationFolder,
                   const std::filesystem::path& recoveryFolder = {});

    Application& GetApplication() { return application_; }

private:
    QtFontEngine fonts_;
    MediaCodecs codecs_;
    SystemClock clock_;
    Application application_;
    AccessibleNames names_;
};

}  // namespace coinlet
