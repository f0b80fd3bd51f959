// Every widget test runs with a QApplication on the offscreen platform.
#include <gtest/gtest.h>

#include "EntornoQt.h"

namespace {

class EntornoQt : public ::testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        pruebas::AseguraAplicacion();
    }
};

[[maybe_unused]] auto* const entorno = ::testing::AddGlobalTestEnvironment(new EntornoQt);

}  // namespace
