// coinlet-play: plays scripts against the whole program, without a window.

#include "app/application.h"
#include "core/plaatjes.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "player/command_line.h"
#include "player/play.h"

#include <QGuiApplication>

#include <iostream>

namespace {

using namespace coinlet;

class CoinletProgram : public player::Program {
public:
    explicit CoinletProgram(const Services& services) : application_(services) {}

    void Start() override { application_.Start(); }
    Session& TheSession() override { return application_.GetContext().session; }
    Form* HiddenForm(std::string_view name) override {
        Form& plaatjes = application_.GetContext().plaatjes;
        return name == plaatjes.Name() ? &plaatjes : nullptr;
    }

private:
    Application application_;
};

}  // namespace

int main(int argc, char* argv[]) {
    // Fonts need Qt, and Qt a platform; one without a screen, unless the caller wants another.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication qt(argc, argv);

    const auto options = player::ReadCommandLine({argv + 1, argv + argc});
    if (!options) {
        std::cerr << player::usage;
        return player::exitUsage;
    }
    const QtFontEngine fonts;
    const MediaCodecs codecs;
    const player::Libraries libraries{
        fonts, codecs, [](const Services& services) { return std::make_unique<CoinletProgram>(services); }};
    return player::PlayAll(*options, libraries, std::cout);
}
