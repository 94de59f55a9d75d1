#include "coinlet_program.h"

#include "app/application.h"
#include "core/plaatjes.h"
#include "filters/filter_core.h"

namespace coinlet {

namespace {

class CoinletProgram : public player::Program {
public:
    explicit CoinletProgram(const Services& services) : application_(services) {}

    void Start() override { application_.Start(); }
    Session& TheSession() override { return application_.GetContext().session; }
    Form* HiddenForm(std::string_view name) override {
        Form& plaatjes = application_.GetContext().plaatjes;
        return name == plaatjes.Name() ? &plaatjes : nullptr;
    }
    void RunFilter(std::int32_t number, Surface& surface, std::int32_t parameter) override {
        std::int32_t progress = 0;
        application_.GetFilterCore().FilterPicture(number, surface, parameter, progress);
    }

private:
    Application application_;
};

}  // namespace

std::unique_ptr<player::Program> MakeCoinlet(const Services& services) {
    return std::make_unique<CoinletProgram>(services);
}

}  // namespace coinlet
