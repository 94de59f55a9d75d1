#pragma once

#include "app/application.h"
#include "app/dialogs.h"
#include "core/accessible_names.h"
#include "core/main_form.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "support/world.h"
#include "user.h"

namespace coinlet::test {

/// The whole program as it is delivered, in its real windows, with a few tags in the collection and some
/// files that are no pictures.
class WholeProgram : public ShellTest {
protected:
    WholeProgram();

    MainForm& Main() { return program_.GetContext().main; }
    /// Presses what opens a dialog of the program, and waits until it is in front.
    Form& Open(User& user, const DialogRow& row);

private:
    /// The application folder and whatever else the program needs of the disk.
    struct Folder : TemporaryFolder {
        Folder();
    };

    Folder folder_;
    QtFontEngine qtFonts_;
    MediaCodecs codecs_;
    StillClock clock_;
    PlainDesktop desktop_{folder_ / "pictures"};
    NoClipboard clipboard_;
    NoPrinter printer_;
    NoScreenGrab screenGrab_;
    Application program_{
        {folder_ / "app", platform, qtFonts_, codecs_, clock_, desktop_, clipboard_, printer_, screenGrab_}};
    AccessibleNames names_{program_.GetContext()};
};

}  // namespace coinlet::test
