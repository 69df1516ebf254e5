// Brown's stages: rounding, bound table, names and expected ages in months.
#include "analysis/brown_stage.h"

#include <array>

#include "base/format.h"

namespace tavi {

namespace {
constexpr std::array<int, 9> kBounds = {0, 100, 150, 200, 250, 300, 350, 400, 450};
constexpr std::array<const char*, 9> kNames = {
    "", "Early I", "Late I", "II", "III", "Early IV", "Late IV/Early V", "Late V", "Post V"};
constexpr std::array<int, 9> kLowerAge = {0, 16, 18, 21, 24, 28, 31, 37, 41};
constexpr std::array<int, 9> kUpperAge = {0, 26, 31, 35, 41, 45, 50, 52, 0};
} // namespace

int roundedHundredths(double mlum) {
    double x = mlum * 100;
    int n = static_cast<int>(x);
    if (x - n >= 0.5)
        ++n;
    return n;
}

int brownStageIndex(double mlum) {
    int r = roundedHundredths(mlum);
    int stage = 0;
    for (int i = 0; i < 9 && kBounds[i] <= r; ++i)
        stage = i;
    return stage;
}

Value brownStage(double mlum) {
    int i = brownStageIndex(mlum);
    return i == 0 ? Value() : Value::text(kNames[i]);
}

Value expectedAgeRange(double mlum) {
    int i = brownStageIndex(mlum);
    if (kLowerAge[i] < 1 && kUpperAge[i] < 1)
        return Value();
    if (kUpperAge[i] > 0)
        return Value::text(format("%d - %d", kLowerAge[i], kUpperAge[i]));
    return Value::text(format("%d - --", kLowerAge[i]));
}

} // namespace tavi
