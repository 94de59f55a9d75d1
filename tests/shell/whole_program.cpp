#include "whole_program.h"

#include "shell/form_window.h"

#include <QApplication>

#include <variant>

namespace coinlet::test {

namespace {

/// What the user presses for a dialog, pressed for him.
class Opener {
public:
    explicit Opener(MainForm& main) : main_(main) {}
    void operator()(MenuItem MainForm::*entry) const { (main_.*entry).Click(); }
    void operator()(ToolButton button) const { main_.Knop[button.number].PointerClicked(); }
    void operator()(FillColourField) const { main_.ColorLabel.PointerClicked(); }

private:
    MainForm& main_;
};

}  // namespace

WholeProgram::Folder::Folder() {
    fs::create_directories(*this / "app");
    for (const auto& entry : fs::directory_iterator(COINLET_DATA)) {
        const fs::path own = *this / "app" / entry.path().filename();
        // What the dialogs may write is the test's own.
        if (own.filename() == "Ontwerpen" || own.filename() == "Collection") {
            fs::copy(entry.path(), own, fs::copy_options::recursive);
        } else {
            fs::create_directory_symlink(entry.path(), own);
        }
    }
    fs::create_directories(*this / "app/Collection");
    Write("app/Collection/Collection.col", "\"Anchor\"\r\n\"Bear\"\r\n\"Crown\"\r\n\"Deer\"\r\n");
    for (const char* name : {"anchor", "bear", "crown", "deer"})
        fs::create_directories(*this / "pictures" / name);
    for (const char* name : {"a.bmp", "b.bmp", "c.bmp", "d.bmp"})
        Write("pictures/" + std::string(name), "no picture");
}

WholeProgram::WholeProgram() {
    platform.NameControlsBy(names_);
}

Form& WholeProgram::Open(User& user, const DialogRow& row) {
    QMetaObject::invokeMethod(
        qApp, [this, &row] { std::visit(Opener(Main()), row.opener); }, Qt::QueuedConnection);
    EXPECT_TRUE(user.Sees([&] {
        // A dialog that serves events while it loads has no window yet.
        const Form* front = platform.FrontForm();
        const FormWindow* window = front ? platform.WindowOf(*front) : nullptr;
        return window && front->Name() == row.form && window->isActiveWindow();
    })) << row.form;
    return *platform.FrontForm();
}

}  // namespace coinlet::test
