#include "store/shown_design.h"

#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/main_life.h"
#include "core/text_keys.h"
#include "core/undo.h"
#include "store/composed_picture.h"
#include "store/info_text.h"

namespace coinlet {

void ShowDesign(Context& context, const std::string& name, const fs::path& file, const Image& picture,
                const Image& composed) {
    MainForm& main = context.main;
    Session& session = context.session;
    main.Pic.surface.SetPicture(picture);
    KeepForUndo(main);
    session.DesignName = name;
    main.Label2.Caption = fileNameCaption + name;
    main.Label2.ToolTipText = file.string();
    session.DesignChanged = false;
    ShowHint(context, key::ready);
    TakeSidePanel(composed, main.InfoPic.surface);
    ReadDesignInfoText(context, file);
    session.StoredDesign = RevisionOf(main);
}

}  // namespace coinlet
