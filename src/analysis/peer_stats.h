// Statistics of a measure over matched database samples, and the one rule by
// which a transcript's value is compared with them. Every report that
// compares with a database uses compareWithPeers, so a value reads "above",
// "below" or "comparable" the same way everywhere.
//
// The sums, mean and standard deviation are computed in single precision, as
// the statistics of stored samples always have been, so the same samples give
// the same figures in every front end.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "analysis/measure_id.h"

namespace tavi {

// Per-measure statistics over the selected samples.
struct PeerStat {
    int n = 0;         // samples that contributed a value
    float mean = 0.0f; // meaningful when n > 0
    float sd = 0.0f;   // sample SD (n - 1); 0 when n < 2 or when the measure carries none
    float min = 0.0f;
    float max = 0.0f;
    bool hasSd = true; // false for measures kept as text or choices

    bool operator==(const PeerStat&) const = default;
};

// Sums a measure's values sample by sample.
class PeerStatAccumulator {
public:
    void add(float x);
    // n, mean, SD (with n - 1, raised to 0 when rounding makes the variance
    // negative, 0 when n < 2), minimum and maximum.
    PeerStat result(bool hasSd = true) const;

private:
    int n_ = 0;
    float sum_ = 0.0f;
    float sumsq_ = 0.0f;
    float min_ = 0.0f;
    float max_ = 0.0f;
};

// Whether a measure carries a spread: texts (Brown's stage, age range,
// minutes:seconds) do not.
bool measureCarriesSd(MeasureId id);

enum class PeerStanding { Comparable, Above, Below };

struct PeerComparison {
    PeerStanding standing = PeerStanding::Comparable;
    std::optional<float> z; // empty when the SD is 0 or the measure carries none
    std::string distance;   // "%0.2f SD" of |z|, or "more than 3 SD"; empty without z
    bool differs() const { return standing != PeerStanding::Comparable; }
};

// The default SD interval when the settings hold none ("SDINT").
inline constexpr float kDefaultSdInterval = 1.0f;

// The comparison rule: with SD 0 (or none) the value is comparable; otherwise
// z = (x - mean) / SD, and |z| at or beyond the SD interval is above (z > 0)
// or below (z < 0) the database mean. Nullopt when the value is missing or no
// sample gave a value.
std::optional<PeerComparison> compareWithPeers(std::optional<double> value, const PeerStat& stat,
                                               float sdInterval);

// "%0.2f SD" of |z|, or "more than 3 SD" when |z| is above 3.
std::string distanceText(float absZ);

// "above", "below", "comparable".
std::string_view standingWord(PeerStanding standing);

// The shortest decimal that reads back as the same single-precision value
// ("7.3"), for machine-readable output.
std::string shortestFloat(float value);

// The SD interval text of the settings ("SDINT"), read as a positive number;
// the default when it is missing or not a positive number.
float sdIntervalFromText(std::string_view text);

} // namespace tavi
