#include "app/application.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "media/system_clock.h"
#include "shell/shell.h"

int main(int argc, char** argv) {
    using namespace coinlet;

    Shell shell(argc, argv);
    const QtFontEngine fonts;
    const MediaCodecs codecs;
    const SystemClock clock;
    const Services services{.applicationFolder = shell.ApplicationFolder(),
                            .platform = shell.GetPlatform(),
                            .fonts = fonts,
                            .codecs = codecs,
                            .clock = clock,
                            .desktop = shell.GetDesktop(),
                            .clipboard = shell.GetClipboard(),
                            .printer = shell.GetPrinter(),
                            .screenGrab = shell.GetScreenGrab()};
    Application application(services);
    return shell.Run([&] { application.Start(); });
}
