// Fonts and picture readers of Qt need an application; it lives as long as the tests run.
#include <QGuiApplication>

#include <gtest/gtest.h>
#include <memory>

namespace {

class GuiApplication final : public testing::Environment {
public:
    void SetUp() override { application_ = std::make_unique<QGuiApplication>(count_, arguments_); }
    void TearDown() override { application_.reset(); }

private:
    int count_ = 1;  // Qt keeps a reference to it.
    char name_[11] = "unit_tests";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

// The test runner owns it.
[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new GuiApplication);

}  // namespace
