#include "app/application.h"
#include "app/named_document.h"
#include "core/accessible_names.h"
#include "launch/application_folder.h"
#include "launch/command_line.h"
#include "launch/user_folders.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "media/system_clock.h"
#include "shell/shell.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace {

using namespace coinlet;

constexpr int folderUnmakeable = 1;

std::variant<CommandLine, Notice> ReadArguments(int argc, char** argv) {
    return ReadCommandLine(std::vector<std::string_view>(argv + (argc > 0 ? 1 : 0), argv + argc));
}

int Say(const Notice& notice) {
    std::fputs(notice.text.c_str(), notice.status == 0 ? stdout : stderr);
    return notice.status;
}

}  // namespace

int main(int argc, char** argv) {
    // A file that may grow no further and a reader that is gone are failed writes, and no reason to die.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    // Help is for those without a screen too; what else stands there, the toolkit reads first.
    const auto first = ReadArguments(argc, argv);
    if (const auto* notice = std::get_if<Notice>(&first); notice && notice->status == 0) return Say(*notice);
    Shell shell(argc, argv);
    const auto arguments = ReadArguments(argc, argv);
    if (const auto* notice = std::get_if<Notice>(&arguments)) return Say(*notice);
    const auto* line = std::get_if<CommandLine>(&arguments);
    // What can't be read is said before anything is made.
    const MediaCodecs codecs;
    std::optional<NamedDocument> document;
    if (line->document) {
        document = ReadNamedDocument(*line->document, codecs);
        if (!document) {
            return Say(
                {"coinlet-designer: can't read '" + line->document->string() + "'\n", documentUnreadable});
        }
    }

    const auto folder = ApplicationFolder({.programFolder = shell.ProgramFolder(),
                                           .userDataFolder = UserDataFolder(std::getenv),
                                           .named = line->folder});
    if (!folder) {
        return Say(
            {"coinlet-designer: can't make the folder '" + line->folder->string() + "'\n", folderUnmakeable});
    }

    // Exports and printed files go there.
    MakePictureFolder(std::getenv);

    QtFontEngine fonts;
    const SystemClock clock;
    const Services services{.applicationFolder = *folder,
                            .platform = shell.GetPlatform(),
                            .fonts = fonts,
                            .codecs = codecs,
                            .clock = clock,
                            .desktop = shell.GetDesktop(),
                            .clipboard = shell.GetClipboard(),
                            .printer = shell.GetPrinter(),
                            .screenGrab = shell.GetScreenGrab(),
                            .recoveryFolder = RecoveryFolder(UserStateFolder(std::getenv))};
    Application application(services);
    const AccessibleNames names(application.GetContext());
    shell.NameControlsBy(names);
    return shell.Run(
        [&] {
            application.Start();
            if (document) application.Show(*document);
        },
        {.isNear = [&] { application.PrepareForEnd(); }, .isHere = [&] { application.SettleForEnd(); }});
}
