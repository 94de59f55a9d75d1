#include "core/main_life.h"

#include "base/clock.h"
#include "base/program.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/settings.h"
#include "core/side_panel.h"
#include "core/text_keys.h"
#include "core/undo.h"

#include <string>

namespace coinlet {

namespace {

constexpr int layoutDotsPerInch = 96;

}  // namespace

MainLife::MainLife(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.Activate = [this] { Form_Activate(); };
    main.Unloading = [this](bool& cancel) { Form_Unload(cancel); };
    main.Timer1.Tick = [this] { Timer1_Timer(); };
    main.FileNew.Click = [this] { FileNew_Click(); };
    main.FileExit.Click = [&main] { main.Unload(); };
    main.BewerkenUndo.Click = [&main] { Undo(main); };
    main.ViewKruis.Click = [this] { ViewKruis_Click(); };
}

void MainLife::Form_Activate() {
    Platform& platform = context_.services.platform;
    const int dots = platform.Screen.DotsPerInch;
    if (dots == layoutDotsPerInch) return;
    platform.ShowMessage({.prompt = "Change your Screen Resolution, is now... " + std::to_string(dots) +
                                    " Dpi\r\nClick on 'Help/Screen Info/Change Resolution'",
                          .title = "Error",
                          .icon = MessageIcon::Stop});
}

void MainLife::Form_Unload(bool& cancel) {
    Platform& platform = context_.services.platform;
    if (context_.session.DesignChanged) {
        const std::string question = LookupInfoText(context_, key::changesNotSaved) + "\r\n" +
                                     LookupInfoText(context_, key::confirmLeaving);
        const Answer answer = platform.ShowMessage({.prompt = question,
                                                    .title = " Close " + std::string(programTitle),
                                                    .buttons = MessageButtons::YesNo,
                                                    .icon = MessageIcon::Question,
                                                    .standard = Answer::Yes});
        if (answer != Answer::Yes) {
            cancel = true;
            return;
        }
    } else if (leavesUnasked) {
        leavesUnasked();
    }
    // A folder that can't be written keeps nobody in the program; the language is then the old one next time.
    static_cast<void>(
        WriteLanguageSetting(context_.services.applicationFolder, context_.session.LanguageName));
    platform.End();
}

void MainLife::Timer1_Timer() {
    const DateTime now = context_.services.clock.Now();
    context_.main.KlokLabel.Caption = FormatDate(now) + " / " + FormatTime(now);
}

void MainLife::FileNew_Click() {
    MainForm& main = context_.main;
    Session& session = context_.session;
    const Answer answer =
        context_.services.platform.ShowMessage({.prompt = LookupInfoText(context_, key::confirmNew),
                                                .title = "New",
                                                .buttons = MessageButtons::YesNo,
                                                .icon = MessageIcon::Question,
                                                .standard = Answer::Yes});
    if (answer != Answer::Yes) return;
    main.Pic.surface.SetPicture({});
    session.DesignName.clear();
    main.Label2.Caption = fileNameCaption;
    main.Label2.ToolTipText.clear();
    main.List2.Clear();
    main.InfoPic.surface.SetPicture({});
    DrawEmptyRows(main.InfoPic.surface, rowTextAfterNew);
    main.Label16.Visible = false;
    session.ToolCode = nothingArmed;
    ShowHint(context_, key::ready);
    session.DesignChanged = false;
    session.StoredDesign = RevisionOf(main);
}

void MainLife::ViewKruis_Click() {
    MainForm& main = context_.main;
    const bool shown = !main.ViewKruis.Checked;
    main.ViewKruis.Checked = shown;
    main.Line3.Visible = shown;
    main.Line4.Visible = shown;
}

}  // namespace coinlet
