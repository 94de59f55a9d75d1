#include "shell/menu_view.h"

#include "controls/form.h"
#include "controls/menu.h"
#include "controls/menu_letters.h"
#include "shell/accessible_controls.h"
#include "shell/control_view.h"
#include "shell/event_gate.h"
#include "shell/qt_text.h"

#include <QKeySequence>
#include <QMenuBar>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace coinlet {

namespace {

/// The caption with the toolkit's mark before the letter by which it is chosen.
QString MarkedCaption(const MenuItem& item, const MenuLetter& letter) {
    // The style would write a rule's text over the rule.
    if (item.IsSeparator()) return {};
    const auto plain = [](std::string_view part) {
        return ToQString(part).replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    // What isn't in the bar has no key that opens it.
    const bool popsUp = !item.Parent() && !item.Visible;
    if (letter.letter.empty() || popsUp) return plain(item.Caption);
    const std::string_view caption = item.Caption;
    return plain(caption.substr(0, letter.place)) + QLatin1Char('&') + plain(caption.substr(letter.place));
}

}  // namespace

void StartAtFirstEntry(QMenu& menu) {
    const auto actions = menu.actions();
    const auto first = std::ranges::find_if(actions, [](const QAction* action) {
        return action->isVisible() && action->isEnabled() && !action->isSeparator();
    });
    if (first != actions.end()) menu.setActiveAction(*first);
}

MenuView::MenuView(Form& form, QWidget& owner, EventGate& gate)
    : form_(&form), owner_(owner), gate_(gate), bar_(std::make_unique<QMenuBar>(&owner)) {
    bar_->setNativeMenuBar(false);
    bar_->hide();
    auto* key = new QShortcut(Qt::Key_F10, &owner);
    QObject::connect(key, &QShortcut::activated, &owner, [this] { OpenFirst(); });
}

MenuView::~MenuView() = default;

void MenuView::Collect(const std::vector<MenuItem*>& items, std::vector<const MenuItem*>& all) {
    for (const MenuItem* item : items) {
        all.push_back(item);
        Collect(item->Entries(), all);
    }
}

void MenuView::SyncEntries() {
    std::vector<const MenuItem*> order;
    Collect(form_->Menus(), order);
    if (order == order_) return;
    order_ = std::move(order);
    // A menu may be on its way to report a choice: it ends when nothing is on its way any more.
    for (auto& menu : menus_)
        gate_.Retire(*menu.release());
    menus_.clear();
    entries_.clear();
    bar_->clear();
    for (MenuItem* item : form_->Menus())
        Add(*item, nullptr);
}

void MenuView::Add(MenuItem& item, QMenu* parent) {
    QMenu* menu = nullptr;
    QAction* action = nullptr;
    if (parent && item.Entries().empty()) {
        action = parent->addAction(QString());
        QObject::connect(action, &QAction::triggered, &owner_, [this, action] { Choose(action); });
        owner_.addAction(action);
    } else {
        menus_.push_back(std::make_unique<QMenu>(&owner_));
        menu = menus_.back().get();
        action = menu->menuAction();
        if (parent) {
            parent->addAction(action);
        } else {
            bar_->addAction(action);
        }
    }
    entries_.push_back({&item, action, menu, {}, {}, {}, {}});
    for (MenuItem* entry : item.Entries())
        Add(*entry, menu);
}

bool MenuView::MirrorTexts() {
    // A letter depends on what stands before it in the menu.
    const auto isStale = [](const Entry& entry) {
        return entry.caption != entry.item->Caption || entry.look.visible != entry.item->Visible;
    };
    if (std::ranges::none_of(entries_, isStale)) return false;
    for (Entry& entry : entries_) {
        const auto& menu = entry.item->Parent() ? entry.item->Parent()->Entries() : form_->Menus();
        const auto place = static_cast<std::size_t>(std::ranges::find(menu, entry.item) - menu.begin());
        entry.caption = entry.item->Caption;
        entry.action->setSeparator(entry.item->IsSeparator());
        if (Differs(entry.text, MarkedCaption(*entry.item, MenuLetters(menu)[place])))
            entry.action->setText(entry.text);
    }
    return true;
}

bool MenuView::Mirror() {
    bool changed = MirrorTexts();
    for (Entry& entry : entries_) {
        const MenuItem& item = *entry.item;
        const Look look{item.Checked, item.Enabled, item.Visible};
        const bool ticked = entry.look.checked != look.checked;
        const bool shortcutChanged = Differs(entry.shortcut, item.Shortcut);
        // A choice toggles the mark of a checked entry by itself.
        const bool lookChanged = Differs(entry.look, look) || entry.action->isChecked() != look.checked;
        if (!shortcutChanged && !lookChanged) continue;
        changed = true;
        if (shortcutChanged)
            entry.action->setShortcut(QKeySequence(ToQString(entry.shortcut), QKeySequence::PortableText));
        entry.action->setCheckable(look.checked);
        entry.action->setChecked(look.checked);
        entry.action->setEnabled(look.enabled);
        entry.action->setVisible(look.visible);
        QMenu* menu = item.Parent() ? PopupOf(*item.Parent()) : nullptr;
        if (ticked && menu) AnnounceTick(*menu, static_cast<int>(menu->actions().indexOf(entry.action)));
    }
    return changed;
}

void MenuView::Detach() {
    form_ = nullptr;
    entries_.clear();
}

QMenuBar* MenuView::Bar() const {
    const bool filled = std::any_of(entries_.begin(), entries_.end(), [](const Entry& entry) {
        return !entry.item->Parent() && entry.item->Visible;
    });
    return filled ? bar_.get() : nullptr;
}

bool MenuView::HasKeyboard() const {
    return bar_->hasFocus();
}

void MenuView::OpenFirst() {
    if (!Bar()) return;
    const auto titles = bar_->actions();
    const auto first = std::ranges::find_if(
        titles, [](const QAction* title) { return title->isVisible() && title->isEnabled(); });
    if (first == titles.end()) return;
    bar_->setActiveAction(*first);
    StartAtFirstEntry(*(*first)->menu());
}

QMenu* MenuView::PopupOf(const MenuItem& menu) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.item == &menu; });
    return found == entries_.end() ? nullptr : found->menu;
}

void MenuView::Choose(const QAction* action) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [action](const Entry& entry) { return entry.action == action; });
    if (found == entries_.end()) return;
    gate_.Enter([item = found->item] {
        if (item->CanBeChosen()) item->Click();
    });
}

}  // namespace coinlet
