#include "desktop/desktop_program.h"

#include "shell/shell.h"

namespace coinlet {

DesktopProgram::DesktopProgram(Shell& shell, const std::filesystem::path& applicationFolder,
                               const std::filesystem::path& recoveryFolder)
    : application_({.applicationFolder = applicationFolder,
                    .platform = shell.GetPlatform(),
                    .fonts = fonts_,
                    .codecs = codecs_,
                    .clock = clock_,
                    .desktop = shell.GetDesktop(),
                    .clipboard = shell.GetClipboard(),
                    .printer = shell.GetPrinter(),
                    .screenGrab = shell.GetScreenGrab(),
                    .recoveryFolder = recoveryFolder}),
      names_(application_.GetContext()) {
    shell.NameControlsBy(names_);
}

}  // namespace coinlet
