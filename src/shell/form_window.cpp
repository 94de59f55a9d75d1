#include "shell/form_window.h"

#include "base/numbers.h"
#include "controls/frame.h"
#include "controls/menu.h"
#include "controls/name_giver.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "shell/device_pixels.h"
#include "shell/event_gate.h"
#include "shell/key_events.h"
#include "shell/look.h"
#include "shell/offered.h"
#include "shell/painted_widget.h"
#include "shell/qt_text.h"
#include "shell/roomy_area.h"
#include "shell/views.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <set>

namespace coinlet {

namespace {

constexpr Qt::WindowFlags mainFlags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                      Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                      Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags dialogFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

const Container* AsContainer(const Control& control) {
    switch (control.Kind()) {
        case ControlKind::Frame:
            return &static_cast<const Frame&>(control);
        case ControlKind::PictureBox:
            return &static_cast<const PictureBox&>(control);
        default:
            return nullptr;
    }
}

/// Whether a control doesn't show by its own look that it has the focus.
bool NeedsRing(const Control& control) {
    switch (control.Kind()) {
        case ControlKind::TextBox:
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
        case ControlKind::ScrollBar:
        case ControlKind::Label:
            return true;
        case ControlKind::PictureBox:
            if (const auto* pointed = dynamic_cast<const PointedPicture*>(&control))
                return pointed->FocusRing;
            return control.KeysPress() && static_cast<const PictureBox&>(control).PressPlaces().empty();
        default:
            return false;
    }
}

}  // namespace

FormWindow::FormWindow(Form& form, EventGate& gate, QWidget* behind)
    : QWidget(behind, behind ? dialogFlags : mainFlags),
      form_(&form),
      gate_(gate),
      menus_(form, *this, gate),
      timers_(form, gate),
      area_(new RoomyArea(this)),
      face_(new PaintedWidget(area_)),
      // The other screen may have more room or less.
      sameSize_(*this, [this](const QSize&) {
          fit_ = {};
          FitToScreen();
      }) {
    setObjectName(ToQString(form.Name()));
    // The keyboard rests here while no control has the focus.
    setFocusPolicy(Qt::NoFocus);
    if (behind) setWindowModality(Qt::ApplicationModal);
    setAcceptDrops(form.TakesDrops());
    face_->setAttribute(Qt::WA_OpaquePaintEvent);
    face_->Paint = [this](QPainter& painter, const QRect& dirty) {
        DevicePixels(painter).Fill(dirty, ToQColor(backColor_));
        outlines_.Paint(painter);
    };
    area_->setWidget(face_);
    containers_[&form] = face_;
}

FormWindow::~FormWindow() = default;

void FormWindow::Open() {
    // Frames are alike, as far as anybody knows yet.
    if (parentWidget()) frame_ = RoomOf(*parentWidget()).frame;
    Mirror();
    if (const QWidget* behind = parentWidget()) {
        QRect place(QPoint(), size());
        place.moveCenter(behind->geometry().center());
        move(MovedInto(place.marginsAdded(frame_), behind->screen()->availableGeometry()).topLeft());
    }
    show();
    WatchScreen();
    activateWindow();
    MirrorFocus();
}

/// The window may come to another screen, and the desktop may take more of a screen for itself or give some
/// back.
void FormWindow::WatchScreen() {
    const auto watch = [this] {
        disconnect(screenIsWatched_);
        if (const QScreen* screen = this->screen()) {
            screenIsWatched_ =
                connect(screen, &QScreen::availableGeometryChanged, this, [this] { FitToScreen(); });
        }
        FitToScreen();
    };
    connect(windowHandle(), &QWindow::screenChanged, this, watch);
    watch();
}

void FormWindow::SyncElements() {
    if (!form_ || (synced_ && elements_ == form_->ElementRevision())) return;
    synced_ = true;
    elements_ = form_->ElementRevision();

    std::set<const Control*> present;
    std::vector<Control*> controls;
    for (Element* element : form_->Elements()) {
        auto* control = dynamic_cast<Control*>(element);
        if (!control) continue;
        controls.push_back(control);
        present.insert(control);
    }
    const auto gone = [&](ControlView* view) {
        if (present.contains(view->Shown()) && view->IsOf(*view->Shown())) return false;
        std::erase_if(containers_, [view](const auto& entry) { return entry.second == &view->Widget(); });
        view->Abandon();
        return true;
    };
    std::erase_if(views_, gone);
    for (Control* control : controls)
        if (!ViewOf(*control)) AddView(*control);
    outlines_.Gather(*form_, *face_);
    for (ControlView* view : views_)
        view->GatherOutlines();
    menus_.SyncEntries();
    timers_.SyncTimers();
}

void FormWindow::AddView(Control& control) {
    const auto parent = containers_.find(&control.Parent());
    if (parent == containers_.end()) return;
    ControlView* view = MakeView(control, *parent->second, gate_);
    if (!view) return;
    namesRevision_ = 0;  // It has none yet.
    views_.push_back(view);
    if (const Container* container = AsContainer(control)) containers_[container] = &view->Widget();
}

ControlView* FormWindow::ViewOf(const Control& control) const {
    const auto found = std::find_if(views_.begin(), views_.end(),
                                    [&](const ControlView* view) { return view->Shown() == &control; });
    return found == views_.end() ? nullptr : *found;
}

void FormWindow::Mirror() {
    if (!form_) return;
    SyncElements();
    timers_.Mirror();
    if (menus_.Mirror()) barIsStale_ = true;
    MirrorFrame();
    outlines_.Mirror(*face_);
    for (ControlView* view : views_)
        view->Mirror();
    MirrorNames();
    MirrorFocus();
}

void FormWindow::MirrorNames() {
    if (!names_ || !Differs(namesRevision_, names_->Revision() + 1)) return;
    for (ControlView* view : views_)
        view->SetOwnName(names_->NameOf(*view->Shown()));
}

void FormWindow::MirrorFrame() {
    if (Differs(caption_, form_->Caption)) setWindowTitle(ToQString(caption_));
    if (Differs(backColor_, form_->BackColor)) face_->update();
    if (Differs(mousePointer_, form_->MousePointer)) {
        if (const auto shape = PointerShape(mousePointer_)) {
            setCursor(*shape);
        } else {
            unsetCursor();
        }
    }
    const QSize size(RoundHalfEven(form_->Width / form_->ChildUnitsPerPixel()),
                     RoundHalfEven(form_->Height / form_->ChildUnitsPerPixel()));
    const bool sizeChanged = Differs(size_, size);
    if (!sizeChanged && !barIsStale_) return;
    barIsStale_ = false;
    face_->resize(size);
    FitToScreen();
    LayOut();
}

/// Where there is room for all, the window has just that size. To be called whenever the screen may give it
/// more room or less, or the desktop has put a frame around it. What the user makes of its size stays until
/// then.
void FormWindow::FitToScreen() {
    if (!form_) return;
    RoomOnScreen room = RoomOf(*this);
    if (isVisible()) frame_ = room.frame;
    room.frame = frame_;
    const QSize bar(0, BarHeight());
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const WindowFit fit = FitIntoRoom(size_ + bar, room.Inside(), scrollBar);
    if (!Differs(fit_, fit)) return;
    constexpr QSize smallest(240, 180);
    SetSizeLimits(*this, fit.IsCut() ? smallest.boundedTo(fit.size) : fit.whole, fit.whole);
    resize(fit.size);
    if (fit.IsCut() && isVisible()) move(MovedInto(frameGeometry(), room.place).topLeft());
}

int FormWindow::BarHeight() const {
    const QMenuBar* bar = menus_.Bar();
    return bar ? bar->sizeHint().height() : 0;
}

void FormWindow::LayOut() {
    const int barHeight = BarHeight();
    if (QMenuBar* bar = menus_.Bar()) {
        bar->setGeometry(0, 0, width(), barHeight);
        bar->show();
    }
    area_->setGeometry(0, barHeight, width(), height() - barHeight);
}

void FormWindow::moveEvent(QMoveEvent*) {
    // At the latest with a move comes the frame.
    if (isVisible()) FitToScreen();
}

void FormWindow::resizeEvent(QResizeEvent*) {
    LayOut();
}

void FormWindow::MirrorFocus() {
    const Control* focused = form_->Focus();
    ControlView* view = focused ? ViewOf(*focused) : nullptr;
    ring_.Surround(view && NeedsRing(*focused) ? &view->Widget() : nullptr);
    // The menus give the keyboard back by themselves.
    if (!isVisible() || menus_.HasKeyboard()) return;
    QWidget* wanted = view ? &view->KeyboardWidget() : this;
    if (focusWidget() == wanted) return;
    wanted->setFocus(Qt::TabFocusReason);
    if (!view) return;
    view->FocusComes();
    // What is under the pointer stays there while the user works on it.
    constexpr int around = 8;
    if (!form_->PointerHeld()) area_->ensureWidgetVisible(wanted, around, around);
}

void FormWindow::BringIntoSight(const ControlView& view, const QPoint& place) {
    constexpr int around = 20;
    const QPoint onFace = view.Widget().mapTo(face_, place);
    area_->ensureVisible(onFace.x(), onFace.y(), around, around);
}

void FormWindow::Detach() {
    hide();
    // The form may be on its way out: views of controls that have gone must leave them alone.
    SyncElements();
    for (ControlView* view : views_)
        view->Detach();
    views_.clear();
    outlines_.Clear();
    menus_.Detach();
    timers_.Detach();
    form_ = nullptr;
    gate_.Retire(*this);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool keysAreLost = event->type() == QEvent::ActivationChange && !isActiveWindow();
    if (!form_ || !keysAreLost || form_->ButtonsHeldByKeys == noButton) return;
    // Those that hold a button of the pointer would come up in another window, and the stroke go on for ever.
    gate_.Enter([this] {
        for (const int code : {keySpace, keyF10})
            form_->KeyUp(nullptr, code, 0);
    });
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!form_) return;
    gate_.Enter([this] { form_->Unload(); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (form_) PressKey(*form_, gate_, *event);
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    if (form_) ReleaseKey(*form_, gate_, *event);
}

void FormWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!MayHoldPicture(*event->mimeData())) return;
    // The other program keeps what it hands over.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void FormWindow::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!form_) return;
    // The other program may take its time to hand it over.
    gate_.Enter([&] {
        const Offer offer = OfferOf(*event->mimeData());
        if (form_) form_->Form_Drop(offer);
    });
}

}  // namespace coinlet
