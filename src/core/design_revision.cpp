#include "core/design_revision.h"

#include "core/main_form.h"

namespace coinlet {

DesignRevision RevisionOf(const MainForm& main) {
    return {.canvas = main.Pic.surface.Revision(),
            .sidePanel = main.InfoPic.surface.Revision(),
            .infoText = main.List2.Rows().Revision()};
}

}  // namespace coinlet
