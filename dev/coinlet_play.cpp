// coinlet-play: plays scripts against the whole program, without a window.

#include "coinlet_program.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "player/command_line.h"
#include "player/play.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char* argv[]) {
    using namespace coinlet;
    // Fonts need Qt, and Qt a platform; one without a screen, unless the caller wants another.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication qt(argc, argv);

    const auto options = player::ReadCommandLine({argv + 1, argv + argc});
    if (!options) {
        std::cerr << player::usage;
        return player::exitUsage;
    }
    QtFontEngine fonts;
    const MediaCodecs codecs;
    const player::Libraries libraries{fonts, codecs, MakeCoinlet, options->state};
    return player::PlayAll(*options, libraries, std::cout);
}
