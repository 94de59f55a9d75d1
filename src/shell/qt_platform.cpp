#include "shell/qt_platform.h"

#include "controls/control.h"
#include "controls/menu.h"
#include "shell/accessible_controls.h"
#include "shell/dialogs.h"
#include "shell/form_window.h"
#include "shell/menu_view.h"
#include "shell/x11_busy_sign.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace coinlet {

/// While it lives, the focus comes and goes within the program: nothing is activated by that.
class QtPlatform::OwnDialog {
public:
    explicit OwnDialog(QtPlatform& platform) : platform_(platform) {
        platform_.Mirror();
        ++platform_.ownDialogs_;
    }
    ~OwnDialog() {
        --platform_.ownDialogs_;
        platform_.FrontComesBack();
    }
    OwnDialog(const OwnDialog&) = delete;
    OwnDialog& operator=(const OwnDialog&) = delete;

private:
    QtPlatform& platform_;
};

QtPlatform::QtPlatform()
    : busy_(X11BusySign()),
      gate_(
          *this, [this] { MirrorAll(); }, busy_) {
    DescribeControls();
    ReadScreen();
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &connections_,
                     [this](Qt::ApplicationState state) { StateChanged(state); });
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &connections_,
                     [this](const QWindow* window) {
                         if (window && ownDialogs_ == 0) focusIsOnItsWay_ = false;
                     });
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::Run(const std::function<void()>& start) {
    gate_.Enter(start);
    if (!Ended() && !windows_.empty()) QCoreApplication::exec();
    // Newest first: a dialog's window belongs to the one behind it.
    gate_.Quietly([this] {
        while (!windows_.empty()) {
            windows_.back()->Detach();
            windows_.pop_back();
        }
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool QtPlatform::Leave(const std::function<void()>& farewell) {
    gate_.Enter([&] {
        EndAtFault(farewell);
        End();
    });
    return Ended();
}

void QtPlatform::ReadScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QSizeF size = QSizeF(screen->size()) * screen->devicePixelRatio();
    Screen.DotsPerInch = static_cast<int>(std::lround(screen->logicalDotsPerInch()));
    Screen.Width = static_cast<int>(std::lround(size.width()));
    Screen.Height = static_cast<int>(std::lround(size.height()));
}

void QtPlatform::MirrorAll() {
    MirrorHourglass();
    for (FormWindow* window : windows_)
        window->Mirror();
}

void QtPlatform::MirrorHourglass() {
    const bool wanted = Screen.MousePointer == hourglassPointer;
    if (!Differs(hourglass_, wanted)) return;
    if (wanted) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

FormWindow* QtPlatform::WindowOf(const Form& form) const {
    const auto found =
        std::ranges::find_if(windows_, [&](const FormWindow* window) { return window->Shown() == &form; });
    return found == windows_.end() ? nullptr : *found;
}

QWidget* QtPlatform::FrontWindow() const {
    return windows_.empty() ? nullptr : windows_.back();
}

void QtPlatform::FormLoaded(Form& form) {
    gate_.Quietly([&] {
        // The window owns itself: it ends when no event is on its way to it any more.
        auto* window = new FormWindow(form, gate_, FrontWindow());
        window->NameBy(names_);
        windows_.push_back(window);
        window->Open();
    });
    busy_.WindowsChanged();
}

void QtPlatform::FormUnloaded(Form& form) {
    FormWindow* window = WindowOf(form);
    if (!window) return;
    std::erase(windows_, window);
    gate_.Quietly([&] { window->Detach(); });
    for (const ModalLoop& modal : loops_)
        if (modal.dialog == &form) modal.loop->quit();
    if (windows_.empty()) QCoreApplication::exit();
}

void QtPlatform::RunModal(Form& dialog) {
    const OwnDialog guard(*this);
    QEventLoop loop;
    const QPointer<FormWindow> window = WindowOf(dialog);
    loops_.push_back({&dialog, &loop});
    {
        const BusyWatch::Pause pause(busy_);
        loop.exec();
    }
    loops_.pop_back();
    // All events to its window came in this loop. The handler that showed it may go on for long, and others
    // may come in the meantime: none of them is to wait for with the window.
    if (window && !window->Shown()) gate_.End(*window);
}

void QtPlatform::ServeEvents() {
    if (pace_.Due()) {
        gate_.Mirror();
    } else {
        gate_.Quietly([this] {
            for (FormWindow* window : windows_)
                window->SyncElements();
        });
    }
    const BusyWatch::Pause pause(busy_);
    QCoreApplication::processEvents();
}

void QtPlatform::ServeEventsFor(double seconds) {
    constexpr double longest = 86400;
    gate_.Mirror();
    const BusyWatch::Pause pause(busy_);
    QEventLoop loop;
    const auto milliseconds = static_cast<int>(std::ceil(std::min(seconds, longest) * 1000));
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

Answer QtPlatform::AskMessage(const Message& message) {
    const OwnDialog guard(*this);
    return ShowMessageBox(FrontWindow(), message, busy_);
}

std::string QtPlatform::AskText(const std::string& prompt, const std::string& title,
                                const std::string& standard) {
    const OwnDialog guard(*this);
    return ShowInputBox(FrontWindow(), prompt, title, standard, busy_);
}

std::string QtPlatform::AskFolder(const std::string& title, const std::string& start) {
    const OwnDialog guard(*this);
    return ShowFolderPicker(FrontWindow(), title, start, busy_);
}

void QtPlatform::ShowPopup(MenuItem& menu, const Control* at) {
    FormWindow* window = WindowOf(menu.OwnerForm());
    if (!window) return;
    gate_.Mirror();
    QMenu* popup = window->PopupOf(menu);
    if (!popup) return;
    const ControlView* view = at && at->Shown() ? window->ViewOf(*at) : nullptr;
    if (!view) return popup->popup(QCursor::pos());
    const QWidget& button = view->Widget();
    popup->popup(button.mapToGlobal(QPoint(0, button.height())));
    StartAtFirstEntry(*popup);
}

void QtPlatform::MovePointer(const Control& control, float x, float y) {
    FormWindow* window = WindowOf(control.OwnerForm());
    const ControlView* view = window ? window->ViewOf(control) : nullptr;
    if (!view) return;
    const float unit = control.PointerUnitsPerPixel();
    const QPoint place(static_cast<int>(std::floor(x / unit)), static_cast<int>(std::floor(y / unit)));
    window->BringIntoSight(*view, place);
    if (PointerCanBeMoved()) {
        warps_.MoveTo(view->Widget().mapToGlobal(place));
    } else {
        pointerSign_.ShowOn(view->Widget(), place);
    }
}

bool QtPlatform::IsPointerOver(const Control& control) const {
    const FormWindow* window = WindowOf(control.OwnerForm());
    const ControlView* view = window ? window->ViewOf(control) : nullptr;
    if (!view) return false;
    // Where nobody tells that it's gone, it seems to be where it was seen last.
    if (!PointerCanBeMoved() && !view->Widget().window()->underMouse()) return false;
    const QWidget* under = QApplication::widgetAt(QCursor::pos());
    // Parts that a widget makes of itself, such as the rows of a list, have no name.
    while (under && under != &view->Widget() && under->objectName().isEmpty())
        under = under->parentWidget();
    return under == &view->Widget();
}

void QtPlatform::ProgramEnding() {
    gate_.Quietly([] {
        for (QWidget* window : QApplication::topLevelWidgets())
            window->hide();
    });
    QCoreApplication::exit();
}

/// A dialog has closed. Some window managers give the focus back, some don't.
void QtPlatform::FrontComesBack() {
    QWidget* front = FrontWindow();
    if (Ended() || !front) return;
    if (ownDialogs_ == 0) focusIsOnItsWay_ = !front->isActiveWindow();
    gate_.Quietly([front] { front->activateWindow(); });
}

void QtPlatform::StateChanged(Qt::ApplicationState state) {
    if (state != Qt::ApplicationActive) {
        away_ = state == Qt::ApplicationInactive && ownDialogs_ == 0 && !focusIsOnItsWay_;
        return;
    }
    ReadScreen();
    Form* front = FrontForm();
    if (!away_ || !front || !loops_.empty()) return;
    away_ = false;
    gate_.Enter([front] { front->Form_Activate(); });
}

}  // namespace coinlet
