#include "app/named_document.h"
#include "desktop/desktop_program.h"
#include "launch/application_folder.h"
#include "launch/command_line.h"
#include "launch/user_folders.h"
#include "media/media_codecs.h"
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

constexpr int folderUnmakeable = 1, screenMissing = 1;

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
    std::optional<NamedDocument> document;
    if (line->document) {
        document = ReadNamedDocument(*line->document, MediaCodecs());
        if (!document) {
            return Say(
                {"coinlet-designer: can't read '" + line->document->string() + "'\n", documentUnreadable});
        }
    }

    if (!shell.HasScreen())
        return Say({"coinlet-designer: there is no display to open a window on\n", screenMissing});
    const auto folder = ApplicationFolder({.programFolder = shell.ProgramFolder(),
                                           .userDataFolder = UserDataFolder(std::getenv),
                                           .named = line->folder});
    if (!folder) {
        return Say(
            {"coinlet-designer: can't make the folder '" + line->folder->string() + "'\n", folderUnmakeable});
    }

    // Exports and printed files go there.
    MakePictureFolder(std::getenv);

    DesktopProgram program(shell, *folder, RecoveryFolder(UserStateFolder(std::getenv)));
    Application& application = program.GetApplication();
    return shell.Run(
        [&] {
            application.Start();
            if (document) application.Show(*document);
        },
        {.isNear = [&] { application.PrepareForEnd(); }, .isHere = [&] { application.SettleForEnd(); }});
}
