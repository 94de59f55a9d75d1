// Pictures from anywhere, on the screen: one of a camera through the import, a file that is dropped, and a
// picture that another program has put on the clipboard.

#include "started_program.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <cstdlib>
#include <filesystem>

namespace coinlet::test {
namespace {

constexpr QRgb paper = 0xFFFFFFFF, red = 0xFFC81E1E, blue = 0xFF1E1EC8;

/// Two halves that tell left from right.
QImage Halves(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(red);
    for (int y = 0; y < height; ++y) {
        for (int x = width / 2; x < width; ++x)
            picture.setPixel(x, y, blue);
    }
    return picture;
}

bool AreAlike(QRgb a, QRgb b) {
    constexpr int tolerance = 8;  // A JPEG isn't exact.
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

/// Waits like Comes, and serves the other program's requests meanwhile.
bool ComesWhileServing(const std::function<bool()>& condition) {
    return Comes([&] {
        QCoreApplication::processEvents();
        return condition();
    });
}

/// A window of a file manager: a press on it begins to drag a file.
class FileManager : public QWindow {
public:
    explicit FileManager(const std::filesystem::path& file) {
        addresses_.append(QUrl::fromLocalFile(QString::fromStdString(file.string())));
        setFlags(Qt::FramelessWindowHint);
        setGeometry(1250, 900, 60, 60);
        show();
    }
    bool Dragging() const { return dragging_; }

protected:
    void mousePressEvent(QMouseEvent*) override {
        auto* content = new QMimeData;
        content->setUrls(addresses_);
        auto* drag = new QDrag(this);
        drag->setMimeData(content);
        dragging_ = true;
        drag->exec(Qt::CopyAction);
        dragging_ = false;
    }

private:
    QList<QUrl> addresses_;
    bool dragging_ = false;
};

class ProgramImport : public StartedProgram {
protected:
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return AreAlike(ColourAt(place), colour); });
    }
    QPoint OnCanvas(int x, int y) const { return PlaceOf(form.Pic, x, y); }
};

TEST_F(ProgramImport, ACameraPictureGoesToTheCanvas) {
    // In the dialog, from its upper left corner, the menu bar not counted.
    constexpr int dialogHeight = 565;
    const QPoint firstPicture(60, 352), view(248, 12), stretch(308, 539), exportButton(717, 539);
    std::filesystem::create_directories(home / "Pictures");
    const auto file = home / "Pictures" / "IMG_0001.JPG";
    ASSERT_TRUE(Halves(6000, 4000).save(QString::fromStdString(file.string()), "JPG", 95));
    Start();
    Choose(OpenMenu(form.File), form.FileImport);
    const OpenWindow dialog = Front();
    ASSERT_EQ(screen.TitleOf(dialog), "Import Pictures (Jpg, Bmp, Gif)");
    const QPoint corner = dialog.place.topLeft() + QPoint(0, dialog.place.height() - dialogHeight);
    EXPECT_EQ(ColourAt(corner + view + QPoint(100, 100)), paper);
    // The folder list has the keys; Enter on the open folder shows what lies in it.
    Key("Return");
    Look(dialog);
    Click(corner + firstPicture);
    ASSERT_TRUE(Shows(corner + view + QPoint(100, 100), red));
    EXPECT_TRUE(AreAlike(ColourAt(corner + view + QPoint(600, 400)), red));
    Click(corner + stretch);
    ASSERT_TRUE(Shows(corner + view + QPoint(600, 400), blue));
    EXPECT_TRUE(AreAlike(ColourAt(corner + view + QPoint(300, 400)), red));
    Click(corner + exportButton);
    ASSERT_TRUE(MainIsInFront());
    // Where the dialog showed the left half the canvas now shows the right one.
    ASSERT_TRUE(Shows(OnCanvas(400, 250), blue));
    EXPECT_TRUE(Shows(OnCanvas(250, 250), red));
    // Ten pixels to the right by the keys, then burned in.
    Key("shift+Right");
    ASSERT_TRUE(Shows(OnCanvas(5, 250), paper));
    Key("Return");
    ASSERT_TRUE(Shows(OnCanvas(15, 250), red));
    EXPECT_TRUE(Shows(OnCanvas(10, 250), paper));
    Key("ctrl+z");
    EXPECT_TRUE(Shows(OnCanvas(15, 250), paper));
}

TEST_F(ProgramImport, AFileIsDroppedOnTheWindow) {
    const auto file = folder / "with blanks & more.png";
    ASSERT_TRUE(Halves(200, 100).save(QString::fromStdString(file.string()), "PNG"));
    Start();
    {
        FileManager manager(file);
        const QPoint inManager(1280, 930);
        ASSERT_TRUE(ComesWhileServing([&] { return manager.isExposed(); }));
        // The drag runs the loop of the other program; what the user does comes in it.
        QTimer hand;
        int step = 0;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            constexpr int moves = 6;
            if (!manager.Dragging()) return;
            ++step;
            if (step <= moves) MoveTo(OnCanvas(150 + 10 * step, 150 + 5 * step));
            if (step == moves + 4) Release();
        });
        hand.start(60);
        MoveTo(inManager);
        Press();
        EXPECT_TRUE(ComesWhileServing([&] { return AreAlike(ColourAt(OnCanvas(50, 50)), red); }));
        EXPECT_EQ(ColourAt(OnCanvas(150, 50)), blue);
        hand.stop();
        Release();
    }
    Key("Return");
    MoveTo({1390, 1040});
    EXPECT_TRUE(Shows(OnCanvas(1, 1), red));
    EXPECT_TRUE(Shows(OnCanvas(200, 100), blue));
    EXPECT_TRUE(Shows(OnCanvas(202, 100), paper));
}

TEST_F(ProgramImport, APictureOfAnotherProgramIsPasted) {
    Start();
    QGuiApplication::clipboard()->setImage(Halves(120, 80));
    QCoreApplication::processEvents();
    Key("ctrl+v");
    ASSERT_TRUE(ComesWhileServing([&] { return ColourAt(OnCanvas(20, 20)) == red; }));
    EXPECT_EQ(ColourAt(OnCanvas(100, 20)), blue);
    Key("Escape");
    EXPECT_TRUE(Shows(OnCanvas(20, 20), paper));
    // The path of one.
    const auto file = folder / "a picture.bmp";
    ASSERT_TRUE(Halves(60, 40).save(QString::fromStdString(file.string()), "BMP"));
    QGuiApplication::clipboard()->setText(QString::fromStdString(file.string()));
    QCoreApplication::processEvents();
    Key("ctrl+v");
    EXPECT_TRUE(ComesWhileServing([&] { return ColourAt(OnCanvas(40, 20)) == blue; }));
    QGuiApplication::clipboard()->clear();
}

}  // namespace
}  // namespace coinlet::test
