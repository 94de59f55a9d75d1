// What a form's controls cost: drawing a button, and reading all properties of a form.

#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/vista_button.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

struct SampleForm : Form {
    explicit SampleForm(FormServices services) : Form(services, "Sample") {
        Knop.Move(0, 0, 1050, 360);
        Knop.SetCaption("Free hand");
        for (int i = 0; i < 100; ++i)
            List1.AddItem("row");
    }

    VistaButton Knop{*this, "Knop"};
    ControlArray<Label> Labels{*this, "Labels", 0, 100};
    ListBox List1{*this, "List1"};
};

struct Sample {
    Sample() { services.platform.ShowMain(form); }

    test::TestServices services;
    SampleForm form{services.ForForms()};
};

/// A button of 70 by 24 pixels; the argument tells whether it has a picture.
void ButtonRedraw(benchmark::State& state) {
    Sample sample;
    VistaButton& button = sample.form.Knop;
    if (state.range(0) != 0) button.SetPicture(Image(Bitmap(28, 14, ToPixel(RGB(40, 90, 160)))));
    Colour colour = 0;
    for (auto _ : state) {
        button.SetForeColor(colour++);
        benchmark::DoNotOptimize(button.Face().Revision());
    }
}
BENCHMARK(ButtonRedraw)->ArgName("picture")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

/// What a pointer costs that moves over a button without changing its look.
void ButtonPointerMove(benchmark::State& state) {
    Sample sample;
    sample.services.platform.pointerOver = &sample.form.Knop;
    for (auto _ : state)
        sample.form.Knop.PointerMoved(0, 0, 5, 5);
}
BENCHMARK(ButtonPointerMove)->Unit(benchmark::kNanosecond);

/// Reads every property of a form of a hundred labels, a button and a list of a hundred rows.
void VisitEveryProperty(benchmark::State& state) {
    Sample sample;
    struct Reader : PropertyVisitor {
        void Visit(const Property& property) override {
            ++count;
            benchmark::DoNotOptimize(property.get().index());
        }
        std::int64_t count = 0;
    } reader;
    for (auto _ : state) {
        for (Element* element : sample.form.Elements()) {
            element->VisitProperties(reader);
        }
    }
    state.SetItemsProcessed(reader.count);
}
BENCHMARK(VisitEveryProperty)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
