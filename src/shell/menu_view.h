#pragma once

#include <QAction>
#include <QMenu>
#include <QString>

#include <memory>
#include <string>
#include <vector>

class QMenuBar;
class QWidget;

namespace coinlet {

class EventGate;
class Form;
class MenuItem;

/// Has the keyboard start at the first entry of an open menu that can be chosen.
void StartAtFirstEntry(QMenu& menu);

/// Shows the menus of a form: a bar of those that are visible, and popups. Alt with a letter, Alt alone and
/// F10 lead into the bar; the letters are the program's.
class MenuView {
public:
    /// `owner` is the window in which the entries' standard keys act.
    MenuView(Form& form, QWidget& owner, EventGate& gate);
    ~MenuView();

    /// Builds the menus anew if entries have come or gone.
    void SyncEntries();
    /// Makes the menus equal to the form's; true if something has become different.
    bool Mirror();
    void Detach();

    /// The bar, or nullptr while there is nothing to show in it.
    QMenuBar* Bar() const;
    /// True while the arrow keys walk the bar.
    bool HasKeyboard() const;
    /// The popup of a menu, or nullptr if it isn't one of this form's.
    QMenu* PopupOf(const MenuItem& menu) const;

private:
    struct Look {
        bool checked = false, enabled = true, visible = true;
        friend bool operator==(const Look&, const Look&) = default;
    };
    struct Entry {
        MenuItem* item;
        QAction* action;
        QMenu* menu;  ///< Of an entry that has entries of its own, else nullptr.
        QString text;
        std::string caption, shortcut;
        Look look;
    };

    void Add(MenuItem& item, QMenu* parent);
    void OpenFirst();
    void Choose(const QAction* action);
    bool MirrorTexts();
    static void Collect(const std::vector<MenuItem*>& items, std::vector<const MenuItem*>& all);

    Form* form_;
    QWidget& owner_;
    EventGate& gate_;
    std::unique_ptr<QMenuBar> bar_;
    std::vector<std::unique_ptr<QMenu>> menus_;
    std::vector<Entry> entries_;
    std::vector<const MenuItem*> order_;
};

}  // namespace coinlet
