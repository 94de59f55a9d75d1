// Every form of the program where one pixel of the program is not one of the screen: each frame has its four
// lines, each icon and picture is as sharp as the screen can show it. Run at several scales.

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/fine_button.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/text_lines.h"
#include "core/tool_codes.h"
#include "shell/form_window.h"
#include "shell/look.h"
#include "surface/finer_edition.h"
#include "whole_program.h"

#include <QFontMetrics>
#include <QImage>
#include <QListView>
#include <QPixmap>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace coinlet::test {
namespace {

constexpr QRgb edge = qRgb(140, 140, 110);

int Rounded(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

QRgb ToRgb(Colour colour) {
    return ToQColor(colour).rgb();
}

enum class Side { Upper, Right, Lower, Left };
constexpr std::array sides{Side::Upper, Side::Right, Side::Lower, Side::Left};
constexpr const char* NameOf(Side side) {
    constexpr std::array names{"upper", "right", "lower", "left"};
    return names[static_cast<std::size_t>(side)];
}

/// The `number`th line of pixels inward from a side, without so many pixels at either end.
QRect LineOf(const QRect& box, Side side, int number, int corner = 0) {
    switch (side) {
        case Side::Upper:
            return {box.left() + corner, box.top() + number, box.width() - 2 * corner, 1};
        case Side::Lower:
            return {box.left() + corner, box.bottom() - number, box.width() - 2 * corner, 1};
        case Side::Left:
            return {box.left() + number, box.top() + corner, 1, box.height() - 2 * corner};
        case Side::Right:
            return {box.right() - number, box.top() + corner, 1, box.height() - 2 * corner};
    }
    return {};
}

/// What the screen shows of a form's window, judged by what the form says of its controls.
class FormLook {
public:
    FormLook(const FormWindow& window, QImage look)
        : window_(window), look_(std::move(look)), scale_(window.devicePixelRatioF()) {}

    void ExpectSharp() {
        for (Element* element : window_.Shown()->Elements()) {
            auto* control = dynamic_cast<Control*>(element);
            if (!control || !control->Shown()) continue;
            SCOPED_TRACE(NameOf(*control));
            control_ = control;
            Judge(*control);
        }
    }

    /// So many were there to be judged.
    int frames = 0, icons = 0;
    /// Lines on a part of which something lies, "control side".
    std::set<std::string> covered;

private:
    static std::string NameOf(const Control& control) {
        std::string name(control.OwnerForm().Name());
        name += "." + std::string(control.Name());
        return control.Index() == noIndex ? name : name + "(" + std::to_string(control.Index()) + ")";
    }

    int Thickness() const { return std::max(1, Rounded(scale_)); }

    const QWidget& WidgetOf(const Control& control) const { return window_.ViewOf(control)->Widget(); }

    /// The widget that the shapes of a container are painted on.
    const QWidget& GroundOf(const Control& shape) const {
        for (const Control* other : shape.Parent().Children())
            if (const ControlView* view = window_.ViewOf(*other)) return *view->Widget().parentWidget();
        return dynamic_cast<const Control*>(&shape.Parent())
                   ? WidgetOf(dynamic_cast<const Control&>(shape.Parent()))
                   : static_cast<const QWidget&>(window_);
    }

    /// The pixels of the screen that a part of a widget covers.
    QRect OnScreen(const QWidget& widget, const QRect& part) const {
        const QRectF place = QRectF(part).translated(widget.mapTo(&window_, QPoint(0, 0)));
        const int left = Rounded(place.left() * scale_), top = Rounded(place.top() * scale_);
        return {left, top, Rounded(place.right() * scale_) - left, Rounded(place.bottom() * scale_) - top};
    }
    QRect OnScreen(const QWidget& widget) const { return OnScreen(widget, widget.rect()); }

    /// If a pixel of the screen belongs to the widget, or to what lies in it where that counts.
    bool Belongs(int x, int y, const QWidget& widget, bool withParts) const {
        // One whose middle lies on a border belongs to what ends there.
        constexpr double middle = 0.499;
        const QPoint place(static_cast<int>((x + middle) / scale_), static_cast<int>((y + middle) / scale_));
        const QWidget* there = window_.childAt(place);
        if (!there) there = &window_;
        if (there->parentWidget() == &widget && IsSeenThrough(*there)) there = &widget;
        if (there != &widget && !(withParts && widget.isAncestorOf(there))) return false;
        // What lets the pointer through is seen nevertheless.
        for (const QWidget* ring : window_.findChildren<QWidget*>()) {
            if (!ring->isVisible() || !ring->testAttribute(Qt::WA_TransparentForMouseEvents) ||
                ring->mask().isEmpty())
                continue;
            if (ring->mask().contains(ring->mapFrom(&window_, place))) return false;
        }
        return true;
    }

    /// A label without ground and text, such as a panel that is nothing but a frame.
    bool IsSeenThrough(const QWidget& widget) const {
        return std::ranges::any_of(window_.Shown()->Elements(), [&](const Element* element) {
            const auto* label = dynamic_cast<const Label*>(element);
            return label && label->Transparent && label->Caption.empty() && &WidgetOf(*label) == &widget;
        });
    }

    /// Expects that a line of pixels has one colour wherever nothing lies before the widget.
    void ExpectLine(const QRect& line, QRgb colour, const QWidget& widget, Side side, bool withParts) {
        int wrong = 0, seen = 0;
        QRgb found = 0;
        for (int y = line.top(); y <= line.bottom(); ++y) {
            for (int x = line.left(); x <= line.right(); ++x) {
                if (!Belongs(x, y, widget, withParts)) {
                    covered.insert(NameOf(*control_) + " " + test::NameOf(side));
                    continue;
                }
                ++seen;
                if (look_.rect().contains(x, y) && look_.pixel(x, y) == colour) continue;
                ++wrong;
                found = look_.rect().contains(x, y) ? look_.pixel(x, y) : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << test::NameOf(side) << " line: " << wrong << " of " << seen
                            << " pixels, such as " << QColor(found).name().toStdString();
    }

    void ExpectFrame(const QRect& box, int thickness, QRgb colour, const QWidget& widget,
                     bool withParts = false) {
        for (const Side side : sides) {
            for (int i = 0; i < thickness; ++i)
                ExpectLine(LineOf(box, side, i), colour, widget, side, withParts);
        }
        ++frames;
    }

    void Judge(const Control& control) {
        switch (control.Kind()) {
            case ControlKind::Label:
                if (static_cast<const Label&>(control).Border)
                    ExpectFrame(OnScreen(WidgetOf(control)), Thickness(), edge, WidgetOf(control));
                break;
            case ControlKind::Frame:
                JudgePanel(static_cast<const Frame&>(control));
                break;
            case ControlKind::Shape:
                JudgeShape(static_cast<const Shape&>(control));
                break;
            case ControlKind::Line:
                JudgeLine(static_cast<const LineShape&>(control));
                break;
            case ControlKind::PictureBox:
                JudgePicture(static_cast<const PictureBox&>(control));
                break;
            case ControlKind::ListBox:
                JudgeRows(control);
                break;
            case ControlKind::TextBox: {
                const auto& box = static_cast<const TextBox&>(control);
                if (box.MultiLine) {
                    JudgeRows(control);
                } else {
                    JudgeField(control, box.BackColor);
                }
                break;
            }
            case ControlKind::ComboBox:
                JudgeField(control, static_cast<const ComboBox&>(control).BackColor);
                break;
            case ControlKind::CheckBox:
                JudgeMark(control);
                break;
            case ControlKind::Button:
                JudgeButton(static_cast<VistaButton&>(*control_));
                break;
            default:
                break;
        }
    }

    /// Its caption stands in the upper line.
    void JudgePanel(const Frame& frame) {
        if (!frame.Border) return;
        const QWidget& widget = WidgetOf(frame);
        const QFontMetrics metrics(ToQFont(frame));
        const int down = frame.Caption.empty() ? 0 : metrics.height() / 2;
        const QRect box = OnScreen(widget, widget.rect().adjusted(0, down, 0, 0));
        for (int i = 0; i < Thickness(); ++i) {
            for (const Side side : {Side::Right, Side::Lower, Side::Left})
                ExpectLine(LineOf(box, side, i), edge, widget, side, false);
            QRect upper = LineOf(box, Side::Upper, i);
            if (!frame.Caption.empty()) {
                const int width = metrics.horizontalAdvance(QString::fromStdString(frame.Caption)) + 16;
                upper.setLeft(OnScreen(widget, QRect(width, 0, 1, 1)).left());
            }
            ExpectLine(upper, edge, widget, Side::Upper, false);
        }
        ++frames;
    }

    QRect BoxOf(const Control& shape) const {
        const double unit = shape.Parent().ChildUnitsPerPixel();
        return {static_cast<int>(std::lrint(shape.Left() / unit)),
                static_cast<int>(std::lrint(shape.Top() / unit)), shape.PixelWidth(), shape.PixelHeight()};
    }

    void JudgeShape(const Shape& shape) {
        if (shape.Form != ShapeForm::Rectangle || shape.BorderDotted || shape.BorderWidth != 1) return;
        // What it surrounds begins where its lines end.
        const QWidget& ground = GroundOf(shape);
        const int thickness = Thickness();
        const QRect inside = OnScreen(ground, BoxOf(shape).adjusted(1, 1, -1, -1));
        ExpectFrame(inside.adjusted(-thickness, -thickness, thickness, thickness), thickness,
                    ToRgb(shape.BorderColor), ground);
    }

    /// An upright or level one, both of whose ends are seen.
    void JudgeLine(const LineShape& line) {
        if (line.BorderWidth != 1 || (line.X1 != line.X2 && line.Y1 != line.Y2)) return;
        const double unit = line.Parent().ChildUnitsPerPixel();
        const auto pixel = [unit](double place) { return static_cast<int>(std::lrint(place / unit)); };
        const QWidget& ground = GroundOf(line);
        const QRect pixels(QPoint(pixel(std::min(line.X1, line.X2)), pixel(std::min(line.Y1, line.Y2))),
                           QPoint(pixel(std::max(line.X1, line.X2)), pixel(std::max(line.Y1, line.Y2))));
        // Its last point may be left out.
        const bool isLevel = pixels.height() == 1;
        const int thickness = Thickness();
        QRect sure = OnScreen(ground, pixels.adjusted(0, 0, isLevel ? -1 : 0, isLevel ? 0 : -1));
        sure.setSize(isLevel ? QSize(sure.width(), thickness) : QSize(thickness, sure.height()));
        sure &= OnScreen(ground);
        EXPECT_FALSE(sure.isEmpty());
        ExpectLine(sure, ToRgb(line.BorderColor), ground, isLevel ? Side::Upper : Side::Left, false);
        ++frames;
    }

    /// The toolkit leaves one pixel of the program for the line, which is so many of the screen's at least.
    void JudgeRows(const Control& control) {
        ExpectFrame(OnScreen(WidgetOf(control)), std::max(1, static_cast<int>(scale_)), edge,
                    WidgetOf(control), true);
        if (control.Kind() == ControlKind::ListBox) JudgeHeightOfRows(static_cast<const ListBox&>(control));
        JudgeIconsOfRows(WidgetOf(control));
    }
    /// A list has room for whole rows.
    void JudgeHeightOfRows(const ListBox& list) const {
        const auto& rows = dynamic_cast<const QListView&>(WidgetOf(list));
        EXPECT_EQ(rows.viewport()->height(), list.VisibleRows() * list.RowPixels());
        EXPECT_GE(list.VisibleRows(), 1);
    }

    /// The toolkit's own frame, with round corners: between these there is a line on each side that is
    /// neither form nor field. It may have another colour along the button of a list that drops down.
    void JudgeField(const Control& control, Colour back) {
        const QWidget& widget = WidgetOf(control);
        const QRect box = OnScreen(widget);
        const QRgb paper = ToRgb(back), ground = GroundColour(control);
        const int corner = 4 * Thickness();
        for (const Side side : sides) {
            bool isThere = false;
            for (int i = 0; i <= 2 * Thickness() && !isThere; ++i) {
                const QRect line = LineOf(box, side, i, corner);
                std::set<QRgb> colours;
                for (int y = line.top(); y <= line.bottom(); ++y) {
                    for (int x = line.left(); x <= line.right(); ++x)
                        colours.insert(look_.pixel(x, y));
                }
                const std::size_t most = control.Kind() == ControlKind::ComboBox ? 2 : 1;
                isThere = colours.size() <= most && !colours.contains(paper) && !colours.contains(ground);
            }
            EXPECT_TRUE(isThere) << test::NameOf(side);
        }
        ++frames;
    }
    static QRgb GroundColour(const Control& control) {
        if (const auto* frame = dynamic_cast<const Frame*>(&control.Parent())) return ToRgb(frame->BackColor);
        if (const auto* picture = dynamic_cast<const PictureBox*>(&control.Parent()))
            return ToRgb(picture->surface.BackColor());
        return ToRgb(control.OwnerForm().BackColor);
    }

    void JudgeMark(const Control& control) {
        const QWidget& widget = WidgetOf(control);
        const QRect box =
            OnScreen(widget, QRect(0, (widget.height() - toggleMark) / 2, toggleMark, toggleMark));
        for (const Side side : sides) {
            for (int i = 0; i < Thickness(); ++i)
                ExpectLine(LineOf(box, side, i, 3 * Thickness()), edge, widget, side, false);
        }
        ++frames;
    }

    /// The whole button is drawn for the pixels of the screen; its letters lie on that.
    void JudgeButton(VistaButton& button) {
        const QRect box = OnScreen(WidgetOf(button));
        Surface face(button.OwnerForm().Fonts(), box.width(), box.height());
        DrawFineButton(face, button);
        const PixelRect uncut = UncutPart(face, button);
        const std::vector<QRect> letters = LettersOf(button, box);
        const auto isLetter = [&](int x, int y) {
            return std::ranges::any_of(letters, [&](const QRect& line) { return line.contains(x, y); });
        };
        int wrong = 0;
        QPoint first;
        for (int y = 0; y < box.height(); ++y) {
            for (int x = 0; x < box.width(); ++x) {
                const bool isCut =
                    (x < uncut.left || x >= uncut.right) && (y < uncut.top || y >= uncut.bottom);
                if (isCut || isLetter(x, y) ||
                    !Belongs(box.left() + x, box.top() + y, WidgetOf(button), true))
                    continue;
                if (ToColour(look_.pixel(box.left() + x, box.top() + y)) == face.Point(x, y)) continue;
                if (++wrong == 1) first = {x, y};
            }
        }
        EXPECT_EQ(wrong, 0) << "first at " << first.x() << ", " << first.y() << " of " << box.width()
                            << " by " << box.height();
        ++frames;
        if (!button.Picture().Empty() && button.Pictures() > 0) JudgeIcon(button, face, isLetter);
    }

    /// The rectangles that a button's lines of letters stand in, in pixels of its face.
    std::vector<QRect> LettersOf(const VistaButton& button, const QRect& box) const {
        const ButtonCaption caption = CaptionOf(button);
        const QFontMetrics metrics(ToQFont(button.Font()));
        std::vector<QRect> letters;
        int top = caption.top;
        for (const std::string& line : caption.lines) {
            const int width = metrics.horizontalAdvance(QString::fromStdString(line));
            const int room = caption.right - caption.left;
            const int left = caption.centred ? caption.left + (room - width) / 2 : caption.left;
            // Letters reach out of their cells by a pixel at most.
            const QRect place(left - 1, top - 1, width + 2, caption.lineHeight + 2);
            if (!line.empty())
                letters.push_back(OnScreen(WidgetOf(button), place).translated(-box.topLeft()));
            top += caption.lineHeight;
        }
        return letters;
    }

    /// The icon is made of a picture that has a pixel for each that the screen has, so that none is enlarged,
    /// and no letter lies on it.
    template <class IsLetter>
    void JudgeIcon(VistaButton& button, const Surface& face, const IsLetter& isLetter) {
        const Image fine = FinerEditionOf(button.Picture());
        if (scale_ > 1) {
            ASSERT_GE(fine.Height(), button.Picture().Height() * scale_);
        }

        const Image picture = button.Picture();
        button.SetPicture({});
        const Image bare = DrawnAs(button, face);
        // What is enlarged is blurred, and another picture.
        button.SetPicture(WithoutFinerEdition(picture));
        const Image blurred = DrawnAs(button, face);
        button.SetPicture(picture);
        EXPECT_EQ(face.Image() == blurred, scale_ == 1 || IsEnlarged(fine, picture));
        int ink = 0, lettered = 0;
        for (int y = 0; y < face.PixelHeight(); ++y) {
            for (int x = 0; x < face.PixelWidth(); ++x) {
                if (face.Point(x, y) == bare.At(x, y)) continue;
                ++ink;
                lettered += isLetter(x, y) ? 1 : 0;
            }
        }
        EXPECT_GT(ink, 20 * scale_);
        EXPECT_EQ(lettered, 0);
        ++icons;
    }

    static Image DrawnAs(const VistaButton& button, const Surface& face) {
        Surface drawn(button.OwnerForm().Fonts(), face.PixelWidth(), face.PixelHeight());
        DrawFineButton(drawn, button);
        return drawn.Image();
    }
    /// If the picture has nothing that a finer edition could show better: a plain square.
    static bool IsEnlarged(const Image& fine, const Image& picture) {
        const int times = fine.Height() / picture.Height();
        for (int y = 0; y < fine.Height(); ++y) {
            for (int x = 0; x < fine.Width(); ++x)
                if (fine.At(x, y) != picture.At(x / times, y / times)) return false;
        }
        return true;
    }
    /// The same pixels, of which nobody said that they have one.
    static Image WithoutFinerEdition(const Image& picture) {
        Bitmap pixels(picture.Width(), picture.Height(), 0);
        for (int y = 0; y < picture.Height(); ++y)
            std::copy_n(picture.Row(y), picture.Width(), pixels.Row(y));
        return Image(std::move(pixels));
    }

    /// Each pixel of the screen shows the one of the picture that its middle lies in, in its colour: none is
    /// mixed of two, and none is left out. What has lines to be read shows them with other letters.
    void JudgePicture(const PictureBox& picture) {
        const Bitmap& pixels = picture.surface.Pixels();
        if (pixels.Width() == 0 || pixels.Height() == 0 || !picture.LinesToRead().empty()) return;
        const QWidget& widget = WidgetOf(picture);
        const int border = picture.Border ? 1 : 0;
        const QRect place = OnScreen(widget, QRect(border, border, pixels.Width(), pixels.Height()));
        const QRect shown = place & OnScreen(widget) & look_.rect();
        const std::vector<QRect> outlines = OutlinesOn(picture, widget);
        int wrong = 0;
        for (int y = shown.top(); y <= shown.bottom(); ++y) {
            for (int x = shown.left(); x <= shown.right(); ++x) {
                const int column =
                    static_cast<int>((x - place.left() + 0.5) * pixels.Width() / place.width());
                const int row = static_cast<int>((y - place.top() + 0.5) * pixels.Height() / place.height());
                if (ToColour(look_.pixel(x, y)) == ToColour(pixels.Row(row)[column])) continue;
                const auto lies = [&](const QRect& outline) { return outline.contains(x, y); };
                if (std::ranges::any_of(outlines, lies) || !Belongs(x, y, widget, false)) continue;
                ++wrong;
            }
        }
        EXPECT_EQ(wrong, 0);
    }
    std::vector<QRect> OutlinesOn(const PictureBox& picture, const QWidget& widget) const {
        std::vector<QRect> outlines;
        for (const Control* child : picture.Children()) {
            if (!child->Shown()) continue;
            if (child->Kind() == ControlKind::Shape) {
                outlines.push_back(OnScreen(widget, BoxOf(*child).adjusted(-1, -1, 1, 1)));
            } else if (child->Kind() == ControlKind::Line) {
                const auto& line = static_cast<const LineShape&>(*child);
                const double unit = picture.ChildUnitsPerPixel();
                const QRectF place(QPointF(line.X1 / unit, line.Y1 / unit),
                                   QPointF(line.X2 / unit, line.Y2 / unit));
                outlines.push_back(
                    OnScreen(widget, place.normalized().toAlignedRect().adjusted(-1, -1, 2, 2)));
            }
        }
        return outlines;
    }

    /// The marks of rows are painted pixel by pixel as they were drawn for the screen.
    void JudgeIconsOfRows(const QWidget& widget) {
        const auto* rows = qobject_cast<const QListView*>(&widget);
        if (!rows) return;
        const QRect inside = rows->viewport()->rect();
        for (int row = 0; row < rows->model()->rowCount(); ++row) {
            const QModelIndex index = rows->model()->index(row, 0);
            const QVariant mark = index.data(Qt::DecorationRole);
            const QRect place = rows->visualRect(index);
            if (!mark.isValid() || !inside.contains(place)) continue;
            const QImage icon = mark.value<QPixmap>().toImage().convertToFormat(QImage::Format_ARGB32);
            EXPECT_EQ(icon.devicePixelRatio(), scale_);
            EXPECT_LT(HalfTones(icon), 0.35) << "row " << row;
            EXPECT_TRUE(IsShownWithin(icon, OnScreen(*rows->viewport(), place))) << "row " << row;
            ++icons;
        }
    }
    /// How much of what the icon covers it covers in part.
    static double HalfTones(const QImage& icon) {
        int ink = 0, halfTones = 0;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                const int level = qAlpha(icon.pixel(x, y));
                ink += level > 0 ? 1 : 0;
                halfTones += level > 0 && level < 255 ? 1 : 0;
            }
        }
        EXPECT_GT(ink, 0);
        return static_cast<double>(halfTones) / std::max(1, ink);
    }
    /// If every pixel that the icon covers wholly has its colour, somewhere in the place.
    bool IsShownWithin(const QImage& icon, const QRect& place) const {
        for (int top = place.top(); top + icon.height() <= place.bottom() + 1; ++top) {
            for (int left = place.left(); left <= place.left() + 8 * Thickness(); ++left) {
                int ink = 0;
                bool isThere = true;
                for (int y = 0; y < icon.height() && isThere; ++y) {
                    for (int x = 0; x < icon.width() && isThere; ++x) {
                        const QRgb pixel = icon.pixel(x, y);
                        if (qAlpha(pixel) != 255) continue;
                        ++ink;
                        isThere = look_.rect().contains(left + x, top + y) &&
                                  look_.pixel(left + x, top + y) == pixel;
                    }
                }
                if (isThere && ink > 0) return true;
            }
        }
        return false;
    }

    const FormWindow& window_;
    QImage look_;
    double scale_;
    Control* control_ = nullptr;
};

class ScaledForms : public WholeProgram {
protected:
    /// Judges what the screen shows of a form now.
    void ExpectSharp(User& user, Form& form) {
        FormWindow& window = *platform.WindowOf(form);
        EXPECT_TRUE(user.SeesPainted(window));
        const QImage look = user.LookAt(window);
        user.Has([&] {
            FormLook judged(window, look);
            judged.ExpectSharp();
            EXPECT_GT(judged.frames, 0);
            icons_ += judged.icons;
            covered_.insert(judged.covered.begin(), judged.covered.end());
        });
    }

    int icons_ = 0;
    std::set<std::string> covered_;
};

TEST_F(ScaledForms, HaveAllTheirFramesAndSharpIcons) {
    Run(Main(), [&](User& user) {
        for (const int language : {1, 2}) {
            user.Has([&] { Main().HelpTaal[language].Click(), platform.Mirror(); });
            SCOPED_TRACE(Main().HelpTaal[language].Caption);
            ExpectSharp(user, Main());
            for (const int tool : {eraseTool, textTool}) {
                user.Has([&] { Main().Knop[tool].PointerClicked(), platform.Mirror(); });
                ExpectSharp(user, Main());
            }
            user.Has([&] { Main().ExitKnop.PointerClicked(), platform.Mirror(); });
            for (const DialogRow& row : Dialogs()) {
                Form& dialog = Open(user, row);
                ExpectSharp(user, dialog);
                user.Key("Escape");
                EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
            }
        }
        // The tools' icons, with two tools and in two languages.
        EXPECT_GE(icons_, 2 * 2 * 16);
        // The mark of the tool in use may have no more room than a pixel of the program beside the next
        // button.
        covered_.erase("Main.ToolShape right");
        EXPECT_EQ(covered_, std::set<std::string>());
    });
}

}  // namespace
}  // namespace coinlet::test
