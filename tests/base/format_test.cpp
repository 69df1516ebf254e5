// The plain-number writers must give the very texts of their printf formats:
// batch rows written with them are compared with files written before.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>

#include "base/format.h"

namespace tavi {
namespace {

TEST(PlainNumbers, WriteWhatPrintfWrites) {
    for (long long n : {0LL, 1LL, -1LL, 42LL, -1234567LL, static_cast<long long>(INT_MAX),
                        static_cast<long long>(INT_MIN), LLONG_MAX, LLONG_MIN})
        EXPECT_EQ(formatInteger(n), format("%lld", n));

    // Halves and near-halves at every place, where rounding differs first.
    const double edges[] = {0.0,   -0.0,   0.5,    1.5,    2.5,    0.125, 0.375,    1.005,
                            2.675, -2.675, 0.0005, 99.995, 1e-300, 1e300, 1234.5678};
    for (double x : edges)
        for (int places = 0; places <= 4; ++places)
            EXPECT_EQ(formatFixed(x, places), format("%0.*f", places, x)) << x << " " << places;

    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> ratio(0.0, 100.0);
    for (int i = 0; i < 20000; ++i) {
        // Means and percentages as the measures make them: a count over a count.
        const double x =
            i % 2 ? ratio(rng) : static_cast<double>(rng() % 100000) / (1 + rng() % 999);
        const int places = static_cast<int>(rng() % 4);
        ASSERT_EQ(formatFixed(x, places), format("%0.*f", places, x)) << x << " " << places;
    }
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(formatFixed(inf, 2), format("%0.*f", 2, inf));
    EXPECT_EQ(formatFixed(-inf, 2), format("%0.*f", 2, -inf));
}

} // namespace
} // namespace tavi
