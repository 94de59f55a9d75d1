#include "core/undo.h"

#include "core/main_form.h"

namespace coinlet {

void KeepForUndo(MainForm& main) {
    main.UndoPic.surface.SetPicture(main.Pic.surface.Image());
}

void Undo(MainForm& main) {
    main.Pic.surface.SetPicture(main.UndoPic.surface.Image());
}

}  // namespace coinlet
