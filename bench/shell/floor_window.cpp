// The least that a window like the program's main one costs with this toolkit: the same number of widgets of
// the same kinds, without anything behind them.

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QWidget>

namespace {

constexpr int width = 1098, height = 668;

class Picture : public QWidget {
public:
    explicit Picture(QWidget* parent) : QWidget(parent) {
        image_.fill(Qt::white);
        setGeometry(204 + 33, 32 + 38 + barHeight, image_.width(), image_.height());
    }
    static constexpr int barHeight = 22;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, image_); }

private:
    QImage image_{500, 500, QImage::Format_RGB32};
};

void AddMenus(QMenuBar& bar) {
    constexpr int menus = 6, entries = 10;
    for (int i = 0; i < menus; ++i) {
        QMenu* menu = bar.addMenu(QStringLiteral("Menu %1").arg(i));
        for (int entry = 0; entry < entries; ++entry)
            menu->addAction(QStringLiteral("Entry %1").arg(entry));
    }
}

void AddFields(QWidget& window) {
    constexpr int buttons = 30, labels = 30, rows = 100;
    for (int i = 0; i < buttons; ++i) {
        auto* button = new QPushButton(QStringLiteral("Button %1").arg(i), &window);
        button->setGeometry(940 + i % 2 * 74, 40 + i / 2 * 30, 70, 26);
    }
    for (int i = 0; i < labels; ++i) {
        auto* label = new QLabel(QStringLiteral("Label %1").arg(i), &window);
        label->setGeometry(240 + i % 10 * 80, 600 + i / 10 * 20, 76, 18);
    }
    auto* list = new QListWidget(&window);
    list->setGeometry(8, 60, 180, 400);
    for (int row = 0; row < rows; ++row)
        list->addItem(QStringLiteral("Row %1").arg(row));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget window;
    window.setFixedSize(width, height + Picture::barHeight);
    QMenuBar bar(&window);
    bar.setGeometry(0, 0, width, Picture::barHeight);
    AddMenus(bar);
    AddFields(window);
    const Picture picture(&window);
    window.show();
    return QApplication::exec();
}
