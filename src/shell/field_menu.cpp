#include "shell/field_menu.h"

#include "shell/event_gate.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

namespace coinlet {

namespace {

/// Opens the menu of a field in the field's place.
template <typename Field>
class MenuKeeper : public QObject {
public:
    /// `watched` is the part of the field that gets its pointer.
    MenuKeeper(Field& field, QWidget& watched, EventGate& gate)
        : QObject(&watched), field_(field), gate_(gate) {
        watched.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::ContextMenu) return false;
        // What was chosen in the former one may still be at work.
        if (menu_) gate_.Retire(*menu_);
        menu_ = field_.createStandardContextMenu();
        if (menu_) menu_->popup(static_cast<const QContextMenuEvent*>(event)->globalPos());
        return true;
    }

private:
    Field& field_;
    EventGate& gate_;
    QPointer<QMenu> menu_;
};

}  // namespace

void KeepMenu(QLineEdit& field, EventGate& gate) {
    new MenuKeeper(field, field, gate);
}

void KeepMenu(QPlainTextEdit& field, EventGate& gate) {
    new MenuKeeper(field, *field.viewport(), gate);
}

}  // namespace coinlet
