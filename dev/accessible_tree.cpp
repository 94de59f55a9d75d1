// coinlet-tree --folder APPFOLDER [--language NAME] [--check]
//
// Prints what assistive tools are told of the program: each form with its controls, as a tree of roles, names
// and states. With --check nothing but what is wrong, with status 1 if there is any: something that a user
// can act on and that has no name, or a name that only the code knows. Needs no screen
// (QT_QPA_PLATFORM=offscreen).

#include "app/application.h"
#include "app/dialogs.h"
#include "controls/control.h"
#include "core/settings.h"
#include "desktop/desktop_program.h"
#include "shell/shell.h"

#include <QAccessible>
#include <QApplication>
#include <QMetaEnum>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace {

using namespace coinlet;

struct Options {
    std::filesystem::path folder;
    std::string language = "English";
    bool check = false;
};

std::optional<Options> ReadOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--check") {
            options.check = true;
        } else if (word == "--folder" && i + 1 < argc) {
            options.folder = argv[++i];
        } else if (word == "--language" && i + 1 < argc) {
            options.language = argv[++i];
        } else {
            return {};
        }
    }
    if (options.folder.empty()) return {};
    return options;
}

std::string RoleOf(QAccessibleInterface& part) {
    const char* role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(part.role());
    return role ? role : "role " + std::to_string(part.role());
}

/// True for what a user can act on by an assistive tool.
bool CanBeUsed(QAccessibleInterface& part) {
    const QAccessible::State state = part.state();
    if (state.invisible || state.disabled) return false;
    if (part.valueInterface() && part.role() == QAccessible::Slider) return true;
    const QAccessibleActionInterface* action = part.actionInterface();
    const bool isPressed =
        action && (action->actionNames().contains(QAccessibleActionInterface::pressAction()) ||
                   action->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    return isPressed || state.editable || state.focusable;
}

class Tree {
public:
    explicit Tree(bool check) : check_(check) {}

    /// False if the form has no window yet.
    bool Add(const Form& form) {
        bool isThere = false;
        internal_.clear();
        for (const Element* element : form.Elements())
            internal_.insert(std::string(element->Name()));
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || window->objectName().toStdString() != form.Name()) continue;
            if (QAccessibleInterface* access = QAccessible::queryAccessibleInterface(window))
                AddPart(*access, std::string(form.Name()), 0);
            isThere = true;
        }
        forms_ += isThere ? 1 : 0;
        return isThere;
    }
    int Forms() const { return forms_; }
    int Parts() const { return parts_; }
    int Faults() const { return faults_; }

private:
    void AddPart(QAccessibleInterface& part, const std::string& path, int depth) {
        const QAccessible::State state = part.state();
        if (state.invisible && depth > 0) return;
        ++parts_;
        const std::string role = RoleOf(part), name = part.text(QAccessible::Name).toStdString();
        if (!check_) {
            std::printf("%*s%s \"%s\"%s%s%s%s\n", 2 * depth, "", role.c_str(), name.c_str(),
                        state.focusable ? " focusable" : "", state.checkable ? " checkable" : "",
                        state.checked ? " checked" : "", state.disabled ? " disabled" : "");
        }
        const QWidget* widget = qobject_cast<QWidget*>(part.object());
        const std::string own = widget ? widget->objectName().toStdString() : std::string();
        const std::string here = own.empty() || depth == 0 ? path : path + "." + own;
        // A window is called by its title; the toolkit's own parts within a field by the field.
        const bool isOwn = widget && internal_.contains(own);
        if (isOwn && CanBeUsed(part) && name.empty()) Complain(here, role, "has no name");
        if (CanBeUsed(part) && part.role() == QAccessible::Client && depth > 0)
            Complain(here, role, "has no role");
        if (!name.empty() && name == own) Complain(here, role, "has the name that the code calls it by");
        for (int i = 0; i < part.childCount(); ++i) {
            // The rows of a list are its content.
            constexpr int enough = 200;
            if (part.role() == QAccessible::List || i >= enough) break;
            if (QAccessibleInterface* child = part.child(i)) AddPart(*child, here, depth + 1);
        }
    }
    void Complain(const std::string& where, const std::string& role, const char* what) {
        std::printf("%s (%s) %s\n", where.c_str(), role.c_str(), what);
        ++faults_;
    }

    bool check_;
    std::set<std::string> internal_;
    int forms_ = 0, parts_ = 0, faults_ = 0;
};

/// Opens one dialog after the other; each is looked at while it is open, and closed.
void LookAtAll(Application& application, Platform& platform, Tree& tree) {
    application.Start();
    tree.Add(*platform.FrontForm());
    std::set<std::string_view> seen;
    for (const DialogRow& row : Dialogs()) {
        if (!seen.insert(row.form).second) continue;
        // A form may serve events before it is shown.
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            Form* front = platform.FrontForm();
            if (!front || front->Name() != row.form || !tree.Add(*front)) return;
            look.stop();
            front->Unload();
        });
        look.start(0);
        row.open(application.GetContext());
    }
    platform.End();
}

}  // namespace

int main(int argc, char** argv) {
    Shell shell(argc, argv);
    const auto options = ReadOptions(argc, argv);
    if (!options) {
        std::fputs("usage: coinlet-tree --folder APPFOLDER [--language NAME] [--check]\n", stderr);
        return 2;
    }
    if (WriteLanguageSetting(options->folder, options->language)) return 2;
    DesktopProgram program(shell, options->folder);
    Tree tree(options->check);
    shell.Run([&] { LookAtAll(program.GetApplication(), shell.GetPlatform(), tree); }, {});
    std::printf("%d forms, %d parts, %d faults\n", tree.Forms(), tree.Parts(), tree.Faults());
    // The main form, and every dialog once.
    std::set<std::string_view> dialogs;
    for (const DialogRow& row : Dialogs())
        dialogs.insert(row.form);
    const bool isWhole = tree.Forms() == static_cast<int>(dialogs.size()) + 1;
    return isWhole && tree.Faults() == 0 ? 0 : 1;
}
