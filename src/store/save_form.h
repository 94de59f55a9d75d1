#pragma once

#include "controls/check_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"
#include "core/design_revision.h"

#include <filesystem>

namespace coinlet {

struct Context;

/// Asks for a name and stores the design under it, or, with `SaveMode` "JPG", exports it as a JPEG file to
/// the user's picture folder. What it stores is the design as it was when the dialog opened.
class SaveForm : public Form {
public:
    explicit SaveForm(Context& context);

    Label Label2{*this, "Label2"};     ///< What Text1 is for.
    TextBox Text1{*this, "Text1"};     ///< The name.
    PictureBox Bar{*this, "Bar"};      ///< Progress, in the place of the name.
    Label Label1{*this, "Label1"};     ///< Its percentage.
    CheckBox Check1{*this, "Check1"};  ///< An export shows the side panel too.
    VistaButton SaveKnop{*this, "SaveKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    // The composed picture: what an export and what a save writes.
    PictureBox Orgineel{*this, "Orgineel"};
    PictureBox BmpPic{*this, "BmpPic"};

    void Form_Load() override;

private:
    void SaveKnop_Click();
    /// The two jobs; false if the user is to stay in the dialog.
    bool ExportJpeg();
    bool SaveDesign();
    /// True if there is no such file, or if the user lets it be overwritten.
    bool MayWrite(const std::filesystem::path& path);
    void ShowProgress();
    bool Exports() const;
    /// An export shows the side panel too.
    bool WithSidePanel() const { return Check1.Value(); }

    Context& context_;
    DesignRevision composed_;  ///< The design that the composed picture shows.
};

}  // namespace coinlet
