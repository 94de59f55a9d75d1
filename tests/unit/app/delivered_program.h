#pragma once

#include "app/application.h"
#include "core/main_form.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet::test {

/// The program started with the data and the fonts that it is delivered with, without windows; what it might
/// write lies in folders of the test.
class DeliveredProgram : public testing::Test {
protected:
    DeliveredProgram() {
        fs::create_directories(folder / "app/Ontwerpen");
        fs::create_directories(folder / "app/Collection");
        for (const auto& entry : fs::directory_iterator(COINLET_DATA)) {
            const fs::path link = folder / "app" / entry.path().filename();
            if (!fs::exists(link)) fs::create_directory_symlink(entry.path(), link);
        }
        program.Start();
    }

    MainForm& Main() { return program.GetContext().main; }

    TemporaryFolder folder;
    TestPlatform platform;
    QtFontEngine fonts;
    MediaCodecs codecs;
    StillClock clock;
    PlainDesktop desktop{folder.Path()};
    NoClipboard clipboard;
    NoPrinter printer;
    NoScreenGrab screenGrab;
    Application program{
        {folder / "app", platform, fonts, codecs, clock, desktop, clipboard, printer, screenGrab}};
};

}  // namespace coinlet::test
