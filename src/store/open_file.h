#pragma once

#include "base/files.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/vista_button.h"

#include <optional>
#include <vector>

namespace coinlet {

struct Context;

/// The dialog over the stored designs: shows the chosen one small, opens it on the canvas, or deletes it.
/// Failures pass in silence: a design that can't be opened closes the dialog and leaves the present one.
class OpenFile : public Form {
public:
    explicit OpenFile(Context& context);

    FileListBox File1{*this, "File1"};     ///< Reads the store; hidden.
    Label Label2{*this, "Label2"};         ///< What to do here.
    ListBox List1{*this, "List1"};         ///< The names of the designs.
    PictureBox BackPic{*this, "BackPic"};  ///< The whole picture of the design shown; hidden.
    Label Label1{*this, "Label1"};         ///< The frame around the preview.
    PictureBox Image1{*this, "Image1"};    ///< The preview.
    VistaButton DelKnop{*this, "DelKnop"};
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;
    void List1_Click();
    void OkKnop_Click();
    void DelKnop_Click();

private:
    /// The file of the chosen row. Its name may be empty, of a file called ".pat".
    std::optional<fs::path> ChosenFile() const;
    /// Puts the chosen design on the canvas, or leaves the present one if it can't be read.
    void OpenChosen();

    Context& context_;
    std::vector<fs::path> files_;  ///< By row.
};

}  // namespace coinlet
