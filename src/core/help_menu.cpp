#include "core/help_menu.h"

#include "base/desktop.h"
#include "base/files.h"
#include "base/program_folders.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "core/web_targets.h"

#include <string>

namespace coinlet {

HelpMenu::HelpMenu(Context& context) : context_(context) {
    MainForm& main = context.main;
    Desktop& desktop = context.services.desktop;
    main.HelpHelp.Click = [this] { HelpHelp_Click(); };
    main.HelpColorCodes.Click = [this] { OpenDocument("PMS-Colors.htm"); };
    main.HelpInfo.Click = [&desktop] { desktop.OpenDocument(std::string(web::site)); };
    main.HelpMeerSoftware.Click = [&desktop] { desktop.OpenDocument(std::string(web::moreSoftware)); };
    main.HelpDownloads.Click = [&desktop] { desktop.OpenDocument(std::string(web::moreCliparts)); };
    main.HelpTaal.Bind(&MenuItem::Click, [this](int index) { HelpTaal_Click(index); });
    main.HelpScreen.Bind(&MenuItem::Click, [this](int index) { HelpScreen_Click(index); });
}

void HelpMenu::HelpHelp_Click() {
    // The language's name may come from a settings file that somebody else wrote.
    const std::string fileName = context_.session.LanguageName + ".pdf";
    if (IsFileName(fileName)) OpenDocument(fileName);
}

void HelpMenu::HelpTaal_Click(int index) {
    MainForm& main = context_.main;
    const Language& language = languages.at(static_cast<std::size_t>(index - main.HelpTaal.First()));
    LoadLanguage(context_, std::string(language.name));
    main.InfoLabel.Caption = language.chosen;
    context_.session.LanguageName = language.name;
    ShowLanguageInTitle(context_);
}

void HelpMenu::HelpScreen_Click(int index) {
    if (index != 1) {
        OpenDocument("Beeldscherm.pdf");
        return;
    }
    const ScreenState& screen = context_.services.platform.Screen;
    std::string text = "Screenresolution... : " + std::to_string(screen.DotsPerInch) +
                       " Dpi (Dots / Inch)\r\n" + "Screensize..... : " + std::to_string(screen.Width) +
                       " x " + std::to_string(screen.Height) + "\r\n" + std::string(42, '-') + "\r\n";
    for (const std::string_view line :
         {key::screenMadeFor, key::screenMayNotFit, key::screenCanBeChanged, key::screenHelpEntry})
        text += LookupInfoText(context_, line) + "\r\n";
    context_.services.platform.ShowMessage({.prompt = text, .title = " Screeninfo"});
}

void HelpMenu::OpenDocument(std::string_view fileName) {
    const Services& services = context_.services;
    services.desktop.OpenDocument((services.applicationFolder / program_folder::help / fileName).string());
}

}  // namespace coinlet
