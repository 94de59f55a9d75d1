#include "fuzz/window_user/window_user.h"

#include "shell/form_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace coinlet::test {

namespace {

constexpr std::size_t actsOfASession = 2000;
/// To get out of what he is in the midst of, he needs fewer.
constexpr std::size_t actsToGetOut = 5000;

std::string NameOf(const QWidget& widget) {
    const QRect place(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    return std::string(widget.metaObject()->className()) + " at " + std::to_string(place.x()) + "," +
           std::to_string(place.y()) + " " + std::to_string(place.width()) + "x" +
           std::to_string(place.height());
}

constexpr std::array keys{Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,  Qt::Key_Home,
                          Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab,   Qt::Key_Backtab,
                          Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Space, Qt::Key_Backspace,
                          Qt::Key_Delete, Qt::Key_F1,     Qt::Key_F10,      Qt::Key_Alt,   Qt::Key_Shift,
                          Qt::Key_Menu,   Qt::Key_A,      Qt::Key_C,        Qt::Key_N,     Qt::Key_O,
                          Qt::Key_P,      Qt::Key_S,      Qt::Key_V,        Qt::Key_X,     Qt::Key_Z,
                          Qt::Key_5};

constexpr std::array<Qt::KeyboardModifiers::Int, 6> modifiers{
    Qt::NoModifier,      Qt::NoModifier,  Qt::ShiftModifier,
    Qt::ControlModifier, Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier};

const std::array texts{QStringLiteral("1"),   QStringLiteral("255"),        QStringLiteral("-7"),
                       QStringLiteral("a b"), QStringLiteral("0.5"),        QStringLiteral("é🦆"),
                       QStringLiteral("a/b"), QStringLiteral("99999999999")};

constexpr std::array mouseButtons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                  Qt::MiddleButton};

}  // namespace

struct WindowUser::WeightedAct {
    std::size_t weight;
    const char* name;
    Act act;
};

const WindowUser::WeightedAct WindowUser::usualActs[] = {
    {10, "press", &WindowUser::Press},
    {24, "move on", &WindowUser::MoveOn},
    {10, "release", &WindowUser::Release},
    {24, "click", &WindowUser::ClickSomething},
    {8, "hover", &WindowUser::Hover},
    {4, "wheel", &WindowUser::TurnWheel},
    {12, "key", &WindowUser::PressKey},
    {3, "type", &WindowUser::TypeText},
    {3, "focus", &WindowUser::GiveFocus},
    {1, "go away", &WindowUser::GoAway},
    {3, "come back", &WindowUser::ComeBack},
    {1, "close", &WindowUser::CloseWindow},
    {1, "resize", &WindowUser::Resize},
    {1, "lose clipboard", &WindowUser::LoseClipboard},
    {1, "fill clipboard", &WindowUser::FillClipboard},
    {2, "drop", &WindowUser::DropFiles},
    {8, "menu", &WindowUser::OpenMenu},
};

WindowUser::WindowUser(std::uint32_t seed, std::size_t acts, std::string folder, std::ofstream& log)
    : dice_(seed), wanted_(acts), folder_(std::move(folder)), log_(log) {}

WindowUser::~WindowUser() = default;

void WindowUser::SitDown(QtPlatform& platform) {
    platform_ = &platform;
    actsOfSession_ = actsToLeave_ = 0;
    buttons_ = Qt::NoButton;
    session_ = std::make_unique<QObject>();
    elsewhere_ = std::make_unique<QWidget>();
    elsewhere_->setGeometry(0, 0, 100, 100);
    elsewhere_->show();
    ActSoon();
}

void WindowUser::ActSoon() {
    QTimer::singleShot(0, session_.get(), [this] {
        if (platform_->Ended()) return;
        ActSoon();  // First, since what he does may not return before he acts again.
        DoSomething();
    });
}

void WindowUser::Note(const std::string& act) {
    log_ << acts_ << ' ' << act << std::endl;  // A crash must not take it away.
}

void WindowUser::DoSomething() {
    ++doings_;
    if (const std::string fault = faults_.Find(*platform_); !fault.empty()) {
        std::fprintf(stderr, "act %zu: %s\n", acts_, fault.c_str());
        std::abort();
    }
    if (IsDone() || actsOfSession_ >= actsOfASession) return Leave();
    ++acts_;
    ++actsOfSession_;
    if (AnswerQuestion()) return;
    static const std::size_t all =
        std::accumulate(std::begin(usualActs), std::end(usualActs), std::size_t{0},
                        [](std::size_t sum, const WeightedAct& one) { return sum + one.weight; });
    std::size_t chosen = dice_.Below(all);
    const WeightedAct* act = usualActs;
    for (; chosen >= act->weight; ++act)
        chosen -= act->weight;
    Note(act->name);
    (this->*act->act)();
}

// --- What stands before everything else -----------------------------------------------------------------

bool WindowUser::AnswerQuestion() {
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        Note("menu " + NameOf(*popup));
        UseMenu(*popup);
        return true;
    }
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) return false;
    Note("dialog " + NameOf(*dialog));
    AnswerDialog(*dialog);
    return true;
}

void WindowUser::UseMenu(QWidget& popup) {
    if (dice_.OneIn(6)) return SendKey(popup.windowHandle(), Qt::Key_Escape, Qt::NoModifier, {});
    if (dice_.OneIn(4)) {
        constexpr std::array ways{Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Right};
        return SendKey(popup.windowHandle(), dice_.Pick(ways), Qt::NoModifier, {});
    }
    const QPoint place = AnyPlaceIn(popup);
    QPointer<QWidget> there(&popup);
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        if (there) SendMouse(type, *there, place, Qt::LeftButton);
}

void WindowUser::AnswerDialog(QDialog& dialog) {
    if (auto* const input = qobject_cast<QInputDialog*>(&dialog)) input->setTextValue(dice_.Pick(texts));
    if (auto* const picker = qobject_cast<QFileDialog*>(&dialog)) {
        const QString base = QString::fromStdString(folder_);
        const std::array folders{base, base + QStringLiteral("/Images"), QDir::rootPath()};
        picker->setDirectory(dice_.Pick(folders));
        return dialog.done(dice_.OneIn(3) ? QDialog::Rejected : QDialog::Accepted);
    }
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    if (buttons.isEmpty() || dice_.OneIn(4))
        return SendKey(dialog.windowHandle(), dice_.OneIn(2) ? Qt::Key_Return : Qt::Key_Escape,
                       Qt::NoModifier, {});
    buttons.at(static_cast<int>(dice_.Below(static_cast<std::size_t>(buttons.size()))))->click();
}

/// He closes what is open, one thing an act.
void WindowUser::Leave() {
    if (++actsToLeave_ > actsToGetOut) {
        std::fprintf(stderr, "act %zu: there is no way out of the program\n", acts_);
        std::abort();
    }
    Note("leave");
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (QWidget* const modal = QApplication::activeModalWidget(); qobject_cast<QDialog*>(modal)) {
        AnswerDialog(*qobject_cast<QDialog*>(modal));
    } else if (QWidget* const window = Window()) {
        window->close();
    }
}

// --- The pointer ----------------------------------------------------------------------------------------

QWidget* WindowUser::Window() const {
    const Form* const front = platform_->FrontForm();
    return front ? platform_->WindowOf(*front) : nullptr;
}

QWidget* WindowUser::AnyWidget() {
    QWidget* const window = Window();
    if (!window || !window->isVisible()) return nullptr;
    std::vector<QWidget*> seen;
    for (QWidget* const widget : window->findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == window && !widget->visibleRegion().isEmpty())
            seen.push_back(widget);
    return seen.empty() ? nullptr : dice_.Pick(seen);
}

QPoint WindowUser::AnyPlaceIn(const QWidget& widget) {
    return {dice_.Between(0, std::max(widget.width() - 1, 0)),
            dice_.Between(0, std::max(widget.height() - 1, 0))};
}

void WindowUser::SendMouse(QEvent::Type type, QWidget& widget, const QPoint& place, Qt::MouseButton button) {
    QWindow* const window = widget.window()->windowHandle();
    if (!window) return;
    if (type == QEvent::MouseButtonPress) buttons_ |= button;
    if (type == QEvent::MouseButtonRelease) buttons_ &= ~Qt::MouseButtons(button);
    const bool isMove = type == QEvent::MouseMove;
    const QPoint inWindow = widget.mapTo(widget.window(), place);
    const Qt::KeyboardModifiers held =
        Qt::KeyboardModifiers::fromInt(dice_.OneIn(8) ? dice_.Pick(modifiers) : 0);
    // Two clicks are a double click only where that is wanted.
    constexpr int pause = 2000, short_ = 20;
    QTest::lastMouseTimestamp += dice_.OneIn(8) ? short_ : pause;
    qt_handleMouseEvent(window, inWindow, widget.window()->mapToGlobal(inWindow), buttons_,
                        isMove ? Qt::NoButton : button, type, held, QTest::lastMouseTimestamp);
}

void WindowUser::Press() {
    pressed_ = AnyWidget();
    if (pressed_)
        SendMouse(QEvent::MouseButtonPress, *pressed_, AnyPlaceIn(*pressed_), dice_.Pick(mouseButtons));
}

void WindowUser::MoveOn() {
    if (!pressed_ || !pressed_->isVisible()) return Hover();
    constexpr int about = 80;
    const QPoint place(dice_.Between(-about, pressed_->width() + about),
                       dice_.Between(-about, pressed_->height() + about));
    SendMouse(QEvent::MouseMove, *pressed_, place, Qt::NoButton);
}

void WindowUser::Release() {
    if (!pressed_) return;
    const QPointer<QWidget> widget = pressed_;
    pressed_ = nullptr;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (widget && buttons_.testFlag(button))
            SendMouse(QEvent::MouseButtonRelease, *widget, AnyPlaceIn(*widget), button);
}

void WindowUser::ClickSomething() {
    Release();
    const QPointer<QWidget> widget = AnyWidget();
    if (!widget) return;
    const QPoint place = AnyPlaceIn(*widget);
    const Qt::MouseButton button = dice_.Pick(mouseButtons);
    for (std::size_t i = 0; i <= (dice_.OneIn(6) ? 1U : 0U); ++i) {
        if (widget) SendMouse(QEvent::MouseButtonPress, *widget, place, button);
        if (widget) SendMouse(QEvent::MouseButtonRelease, *widget, place, button);
    }
    buttons_ &= ~Qt::MouseButtons(button);
}

void WindowUser::Hover() {
    if (QWidget* const widget = AnyWidget())
        SendMouse(QEvent::MouseMove, *widget, AnyPlaceIn(*widget), Qt::NoButton);
}

void WindowUser::TurnWheel() {
    QWidget* const widget = AnyWidget();
    if (!widget) return;
    constexpr int notch = 120, furthest = 5;
    const QPoint place = AnyPlaceIn(*widget), turn(0, notch * dice_.Between(-furthest, furthest));
    QWheelEvent event(place, widget->mapToGlobal(place), {}, dice_.OneIn(4) ? turn.transposed() : turn,
                      buttons_, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

// --- Keys and focus -------------------------------------------------------------------------------------

void WindowUser::SendKey(QWindow* window, int key, Qt::KeyboardModifiers held, const QString& text) {
    const QPointer<QWindow> there(window);
    if (there) qt_handleKeyEvent(there, QEvent::KeyPress, key, held, text);
    if (there) qt_handleKeyEvent(there, QEvent::KeyRelease, key, held, text);
}

void WindowUser::PressKey() {
    QWidget* const window = Window();
    if (!window) return;
    const auto held = Qt::KeyboardModifiers::fromInt(dice_.Pick(modifiers));
    const int key = dice_.Pick(keys);
    const bool types =
        key >= Qt::Key_Space && key <= Qt::Key_Z && !(held & (Qt::ControlModifier | Qt::AltModifier));
    SendKey(window->windowHandle(), key, held, types ? QString(QChar(key)) : QString());
}

void WindowUser::TypeText() {
    QWidget* const window = Window();
    if (!window) return;
    const QPointer<QWindow> there(window->windowHandle());
    for (const QChar letter : dice_.Pick(texts))
        if (there) SendKey(there, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
}

void WindowUser::GiveFocus() {
    if (QWidget* const widget = AnyWidget()) widget->setFocus(Qt::TabFocusReason);
}

void WindowUser::GoAway() {
    elsewhere_->activateWindow();
}

void WindowUser::ComeBack() {
    if (QWidget* const window = Window()) window->activateWindow();
}

// --- Windows --------------------------------------------------------------------------------------------

void WindowUser::CloseWindow() {
    if (QWidget* const window = Window()) window->close();
}

void WindowUser::Resize() {
    constexpr int largest = 3000;
    if (QWidget* const window = Window())
        window->resize(dice_.Between(0, largest), dice_.Between(0, largest));
}

void WindowUser::OpenMenu() {
    QWidget* const window = Window();
    auto* const bar = window ? window->findChild<QMenuBar*>() : nullptr;
    if (!bar || bar->actions().isEmpty() || !bar->isVisible()) return;
    const auto menus = bar->actions();
    QAction* const menu = menus.at(static_cast<int>(dice_.Below(static_cast<std::size_t>(menus.size()))));
    if (!menu->menu()) return;
    // The choice itself too, or most menus would close again unused.
    const auto entries = menu->menu()->actions();
    if (entries.isEmpty() || dice_.OneIn(2)) return bar->setActiveAction(menu);
    QAction* const entry =
        entries.at(static_cast<int>(dice_.Below(static_cast<std::size_t>(entries.size()))));
    if (entry->isEnabled() && entry->isVisible() && !entry->isSeparator()) entry->trigger();
}

// --- Other programs -------------------------------------------------------------------------------------

std::unique_ptr<QMimeData> WindowUser::AnyOffer() {
    auto offer = std::make_unique<QMimeData>();
    const QStringList names{QStringLiteral("Images/bitmap.bmp"), QStringLiteral("Images/cut.bmp"),
                            QStringLiteral("Data/About.inf"), QStringLiteral("Images"),
                            QStringLiteral("missing.png")};
    if (dice_.OneIn(4)) {
        offer->setText(dice_.Pick(texts));
    } else if (dice_.OneIn(3)) {
        QImage image(dice_.Between(1, 700), dice_.Between(1, 700), QImage::Format_ARGB32);
        image.fill(dice_.Next());
        offer->setImageData(image);
    } else {
        const QString name = names.at(static_cast<int>(dice_.Below(static_cast<std::size_t>(names.size()))));
        offer->setUrls({QUrl::fromLocalFile(QString::fromStdString(folder_) + QLatin1Char('/') + name)});
    }
    return offer;
}

void WindowUser::LoseClipboard() {
    QGuiApplication::clipboard()->clear();
}

void WindowUser::FillClipboard() {
    QGuiApplication::clipboard()->setMimeData(AnyOffer().release());
}

void WindowUser::DropFiles() {
    const QPointer<QWidget> window = Window();
    if (!window) return;
    const auto offer = AnyOffer();
    const QPoint place = AnyPlaceIn(*window);
    QDragEnterEvent enter(place, Qt::CopyAction, offer.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    if (!window || !enter.isAccepted()) return;
    QDropEvent drop(place, Qt::CopyAction, offer.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &drop);
}

}  // namespace coinlet::test
