#include "user.h"

#include "controls/menu.h"
#include "shell/form_window.h"

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <atomic>
#include <chrono>
#include <thread>

namespace coinlet::test {

using namespace std::chrono_literals;

void User::Has(const std::function<void()>& action) {
    QMetaObject::invokeMethod(
        qApp, [&] { action(); }, Qt::BlockingQueuedConnection);
}

bool User::Sees(const std::function<bool()>& condition) {
    const auto patience = std::chrono::steady_clock::now() + 20s;
    while (std::chrono::steady_clock::now() < patience) {
        bool seen = false;
        Has([&] { seen = condition(); });
        if (seen) return true;
        std::this_thread::sleep_for(5ms);
    }
    return false;
}

QPoint User::ToScreen(const QWidget& widget, const QPoint& place) {
    // The middle of a pixel of the widget, however large the display shows it. A screen lies where it would
    // if none enlarged anything.
    const double scale = widget.devicePixelRatioF();
    const QPoint origin = widget.screen()->geometry().topLeft();
    const QPointF middle = QPointF(widget.mapToGlobal(place) - origin) + QPointF(0.5, 0.5);
    return origin + QPoint(static_cast<int>(middle.x() * scale), static_cast<int>(middle.y() * scale));
}

QImage User::LookAt(const QWidget& window) {
    QImage look;
    Has([&] {
        QScreen& screen = *window.screen();
        const QPoint corner = window.mapToGlobal(QPoint(0, 0)) - screen.geometry().topLeft();
        look = screen.grabWindow(0, corner.x(), corner.y(), window.width(), window.height())
                   .toImage()
                   .convertToFormat(QImage::Format_RGB32);
    });
    return look;
}

QImage PaintedAnew(QWidget& window) {
    const double scale = window.devicePixelRatioF();
    QImage picture((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::magenta);
    window.render(&picture);
    picture.setDevicePixelRatio(1);
    return picture;
}

bool User::SeesPainted(QWidget& window) {
    const auto patience = std::chrono::steady_clock::now() + 20s;
    while (std::chrono::steady_clock::now() < patience) {
        QImage painted;
        Has([&] { painted = PaintedAnew(window); });
        if (LookAt(window) == painted) return true;
        std::this_thread::sleep_for(20ms);
    }
    return false;
}

void User::MoveWindow(const QWidget& window, const QPoint& place) {
    WId id = 0;
    Has([&] { id = window.windowHandle()->winId(); });
    Do({"windowmove", "--sync", std::to_string(id), std::to_string(place.x()), std::to_string(place.y())});
}

QPoint User::PlaceOf(const Control& control, int x, int y) {
    QPoint place;
    Has([&] {
        const ControlView* view = platform_.WindowOf(control.OwnerForm())->ViewOf(control);
        place = ToScreen(view->Widget(), QPoint(x, y));
    });
    return place;
}

QPoint User::PlaceOf(const MenuItem& item) {
    QPoint place;
    Has([&] {
        const FormWindow* window = platform_.WindowOf(item.OwnerForm());
        const QString caption = QString::fromStdString(item.Caption);
        if (const auto* bar = window->findChild<QMenuBar*>(); bar && !item.Parent()) {
            for (QAction* action : bar->actions())
                if (action->text().remove(QLatin1Char('&')) == caption)
                    place = ToScreen(*bar, bar->actionGeometry(action).center());
        } else if (const QMenu* menu = window->PopupOf(*item.Parent())) {
            for (QAction* action : menu->actions())
                if (action->text().remove(QLatin1Char('&')) == caption)
                    place = ToScreen(*menu, menu->actionGeometry(action).center());
        }
    });
    return place;
}

void User::Do(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const auto& argument : arguments)
        list << QString::fromStdString(argument);
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), list), 0);
}

void User::MoveTo(const QPoint& place) {
    Do({"mousemove", "--sync", std::to_string(place.x()), std::to_string(place.y())});
}
void User::MoveAwayFrom(QWidget& window) {
    constexpr const char* beyond = "32000";
    Do({"mousemove", beyond, beyond});
    constexpr QPoint outside(-5, -5);
    Has([&] { QTest::mouseMove(window.windowHandle(), outside); });
}
void User::Press(int button) {
    Do({"mousedown", std::to_string(button)});
}
void User::Release(int button) {
    Do({"mouseup", std::to_string(button)});
}
void User::Click(const QPoint& place) {
    Do({"mousemove", std::to_string(place.x()), std::to_string(place.y())});
    Do({"click", "1"});
}
void User::ClickMiddle(const QPoint& place) {
    Do({"mousemove", std::to_string(place.x()), std::to_string(place.y())});
    Do({"click", "2"});
}
void User::DoubleClick(const QPoint& place) {
    Do({"mousemove", std::to_string(place.x()), std::to_string(place.y())});
    Do({"click", "--repeat", "2", "--delay", "20", "1"});
}
void User::Key(const std::string& name) {
    Do({"key", name});
}
void User::Type(const std::string& text) {
    Do({"type", "--delay", "5", text});
}

int User::ColourAt(const QPoint& place) {
    QRgb pixel = 0;
    Has([&] { pixel = QGuiApplication::primaryScreen()->grabWindow(0).toImage().pixel(place); });
    return ToColour(pixel);
}

void ShellTest::Run(Form& form, const std::function<void(User&)>& work) {
    std::thread life;
    platform.Run([&] {
        platform.ShowMain(form);
        life = std::thread([&] {
            User user(platform);
            FormWindow* window = nullptr;
            EXPECT_TRUE(user.Sees([&] {
                window = platform.WindowOf(form);
                if (!window || !window->windowHandle()->isExposed()) return false;
                // No window manager is there that would bring it to the front.
                if (!window->isActiveWindow()) window->activateWindow();
                return window->isActiveWindow();
            }));
            // The toolkit takes a pointer that comes back to where a window of a test before saw it last for
            // one that didn't move.
            if (window) user.MoveAwayFrom(*window);
            work(user);
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
        });
    });
    // Whatever the user still waits for comes true or fails while events are served.
    std::atomic<bool> done = false;
    std::thread waiter([&] {
        life.join();
        done = true;
    });
    while (!done)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    waiter.join();
    // His farewell must not end the next test.
    QCoreApplication::processEvents();
}

}  // namespace coinlet::test
