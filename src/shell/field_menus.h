#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QMenu;

namespace coinlet {

class EventGate;

/// Keeps the menus that the toolkit's text fields bring along (cut, copy, paste ...) until their field opens
/// the next one, or ends. By itself such a menu would end with the first event after it closed, before the
/// toolkit is done with what was chosen: that changes the text, and handlers of the change serve events.
class FieldMenus : public QObject {
public:
    explicit FieldMenus(EventGate& gate);

    bool eventFilter(QObject* target, QEvent* event) override;

private:
    EventGate& gate_;
    std::vector<QPointer<QMenu>> kept_;
};

}  // namespace coinlet
