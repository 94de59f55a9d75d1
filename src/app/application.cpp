#include "app/application.h"

#include "app/dialogs.h"
#include "app/named_document.h"
#include "app/start_up.h"
#include "core/canvas_work.h"
#include "core/help_menu.h"
#include "core/main_form.h"
#include "core/main_life.h"
#include "core/plaatjes.h"
#include "core/settings.h"
#include "core/tool_codes.h"
#include "filters/filter_core.h"
#include "filters/filter_menu.h"
#include "store/clipboard_copy.h"
#include "store/recovery.h"
#include "tools/canvas_keys.h"
#include "tools/copy_tool.h"
#include "tools/fill_tools.h"
#include "tools/flip_menu.h"
#include "tools/floating_clip.h"
#include "tools/gesture_engine.h"
#include "tools/hole_tool.h"
#include "tools/image_browser.h"
#include "tools/incoming_pictures.h"
#include "tools/line_tools.h"
#include "tools/shape_tools.h"
#include "tools/side_panel_rows.h"
#include "tools/text_tool.h"
#include "tools/tool_strip.h"

namespace coinlet {

struct Application::House {
    explicit House(const Services& given)
        : services(given),
          main(given.ForForms()),
          plaatjes(given.ForForms()),
          context{services, session, main, plaatjes} {
        gestures.Add(FreeHandTool(context));
        gestures.Add(LineTool(context));
        gestures.Add(ShapeTools(context));
        gestures.Add(FillTool(context));
        gestures.Add(EraseTool(context));
        gestures.Add(PickTool(context));
        gestures.placeText = [this](GesturePoint pointer) { text.Place(pointer); };
        gestures.Add(CopyTool(context));
        gestures.Add(HoleTool(context));
        gestures.Add(EmptyBandTools(shapesMenuTool, shapesMenuTool));
        gestures.Add(EmptyBandTools(flipMenuTool, flipMenuTool));
        gestures.Add(EmptyBandTools(aboutTool, firstShapeTool - 1));
        BindDialogs(context, strip);
        BindCanvasKeys(context);
        main.SpareKey = [this](int code, int shift) {
            if (code == keyShift) gestures.ShiftTurned(true);
            return clip.TakesKey(code, shift) || incoming.TakesKey(code, shift) ||
                   strip.TakesKey(code, shift);
        };
        main.KeyReleased = [this](int code, int) {
            if (code == keyShift) gestures.ShiftTurned(false);
        };
        main.Load = [this] {
            StartUp(context);
            recovery.PutBackLostWork();
        };
        gestures.strokeFinished = [this] { recovery.StrokeFinished(); };
        life.leavesUnasked = [this] { recovery.KeepForNextStart(); };
    }

    Services services;
    Session session;
    MainForm main;
    PlaatjesForm plaatjes;
    Context context;
    Recovery recovery{context, services.recoveryFolder};
    CanvasWork canvasWork;
    FilterCore filterCore{context};
    // Each binds itself to the controls that it serves.
    MainLife life{context};
    HelpMenu help{context};
    ClipboardCopy copy{context};
    ToolStrip strip{context};
    TextTool text{context};
    ImageBrowser browser{context};
    GestureEngine gestures{context};
    FloatingClip clip{context, canvasWork};
    IncomingPictures incoming{context, canvasWork};
    FlipMenu flips{context, canvasWork};
    SidePanelRows panelRows{context};
    FilterMenu filters{context, canvasWork, filterCore};
};

Application::Application(const Services& services) : house_(std::make_unique<House>(services)) {}
Application::~Application() = default;

void Application::Start() {
    house_->services.platform.ShowMain(house_->main);
}

void Application::Show(const NamedDocument& document) {
    ShowNamedDocument(house_->context, house_->incoming, document);
}

void Application::PrepareForEnd() {
    house_->recovery.WriteNow();
}

void Application::SettleForEnd() {
    // The work comes first, for there may be no time for more.
    house_->recovery.KeepForNextStart();
    static_cast<void>(WriteLanguageSetting(house_->services.applicationFolder, house_->session.LanguageName));
}

Context& Application::GetContext() {
    return house_->context;
}

FilterCore& Application::GetFilterCore() {
    return house_->filterCore;
}

}  // namespace coinlet
