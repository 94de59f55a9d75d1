#pragma once

#include "controls/form.h"
#include "shell/control_view.h"
#include "shell/focus_ring.h"
#include "shell/menu_view.h"
#include "shell/outlines.h"
#include "shell/screen_room.h"
#include "shell/size_on_screens.h"
#include "shell/timer_view.h"

#include <QWidget>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace coinlet {

class NameGiver;
class PaintedWidget;
class RoomyArea;

/// The window of a form: menu bar, controls, timers. It is as large as the form says; where the screen has
/// not that much room, it is as large as there is room, bars scroll the form in it, and the user may size it.
class FormWindow : public QWidget {
public:
    /// A dialog lies before the window `behind`; the main window has none behind it.
    FormWindow(Form& form, EventGate& gate, QWidget* behind);
    ~FormWindow() override;

    /// Who names what has no caption; nullptr: nobody. It must outlive the window.
    void NameBy(const NameGiver* names) { names_ = names; }
    /// Shows the window: a dialog in the middle of the one behind it, but not beyond the screen.
    void Open();
    /// Makes widgets for controls that have come, and lets go of those that have gone; menus and timers
    /// alike. What serves events must call it first, for until then widgets and clocks may still know of
    /// elements that aren't there.
    void SyncElements();
    /// Makes the whole window equal to its form.
    void Mirror();
    /// The form is unloaded: hides the window, which from now on knows nothing of the form and ends when no
    /// event is on its way to it.
    void Detach();

    Form* Shown() const { return form_; }
    ControlView* ViewOf(const Control& control) const;
    /// Scrolls, if it must, until a place of a control's widget is seen.
    void BringIntoSight(const ControlView& view, const QPoint& place);
    QMenu* PopupOf(const MenuItem& menu) const { return menus_.PopupOf(menu); }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void AddView(Control& control);
    void MirrorFrame();
    void MirrorFocus();
    void MirrorNames();
    void WatchScreen();
    void FitToScreen();
    void LayOut();
    int BarHeight() const;

    Form* form_;
    EventGate& gate_;
    MenuView menus_;
    TimerView timers_;
    RoomyArea* area_;
    PaintedWidget* face_;
    Outlines outlines_;
    FocusRing ring_;
    std::vector<ControlView*> views_;
    std::map<const Container*, QWidget*> containers_;

    const NameGiver* names_ = nullptr;
    std::uint64_t namesRevision_ = 0;
    std::uint64_t elements_ = 0;
    bool synced_ = false;
    std::string caption_;
    Colour backColor_ = white;
    int mousePointer_ = defaultPointer;
    QSize size_;
    bool barIsStale_ = true;
    QMargins frame_;  ///< Of the desktop's frame around the window, as far as it is known.
    WindowFit fit_;
    SameSizeOnScreens sameSize_;
    QMetaObject::Connection screenIsWatched_;
};

}  // namespace coinlet
