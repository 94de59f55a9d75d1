#include "shell/field_menus.h"

#include "shell/event_gate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>

namespace coinlet {

FieldMenus::FieldMenus(EventGate& gate) : gate_(gate) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FieldMenus::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::Show) return false;
    auto* const menu = qobject_cast<QMenu*>(target);
    if (!menu || !menu->parent() || !menu->testAttribute(Qt::WA_DeleteOnClose)) return false;
    menu->setAttribute(Qt::WA_DeleteOnClose, false);
    std::erase_if(kept_, [&](const QPointer<QMenu>& former) {
        if (!former) return true;
        if (former->parent() != menu->parent()) return false;
        // What was chosen there may still be at work.
        gate_.Retire(*former);
        return true;
    });
    kept_.emplace_back(menu);
    return false;
}

}  // namespace coinlet
